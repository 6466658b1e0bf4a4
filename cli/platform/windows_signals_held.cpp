#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <mutex>

#include "platform/signals_held.h"

namespace tivex_program {
namespace {

std::recursive_mutex held;

// Runs in a thread of its own. It waits until nothing is held, lets nothing be held any
// more, and leaves it to the system's own handler to end the program.
BOOL WINAPI wait_until_released(DWORD /*event*/) {
  held.lock();
  return FALSE;
}

}  // namespace

signals_held::signals_held() {
  // It stays: removing it would wait for a handler that waits for this object.
  [[maybe_unused]] static const BOOL watched = ::SetConsoleCtrlHandler(wait_until_released, TRUE);
  held.lock();
}

signals_held::~signals_held() { held.unlock(); }

}  // namespace tivex_program
