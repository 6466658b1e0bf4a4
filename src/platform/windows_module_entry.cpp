#define WIN32_LEAN_AND_MEAN
#include <windows.h>

// The library keeps no per-thread state, so it wants no per-thread calls; all
// other state starts from its static initial values.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(module);
  return TRUE;
}
