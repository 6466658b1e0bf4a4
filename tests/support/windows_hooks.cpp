// Windows: the library calls the run-time library through pointers of the import
// library, so that pointers stand in for them here.
#define WIN32_LEAN_AND_MEAN
#include <io.h>
#include <malloc.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <string>

#include "support/runtime_hooks.h"

#ifdef _WIN64
#define WRAPPED(name, arguments) __asm__("__wrap___imp_" name)
#define REAL(name, arguments) __asm__("__real___imp_" name)
#else
#define WRAPPED(name, arguments) __asm__("___wrap__imp__" name arguments)
#define REAL(name, arguments) __asm__("___real__imp__" name arguments)
#endif

using namespace runtime_control;

namespace {

using time_function = __time64_t(__cdecl*)(__time64_t*);
using process_id_function = DWORD(WINAPI*)();
using read_function = int(__cdecl*)(int, void*, unsigned);
using status_function = int(__cdecl*)(int, struct _stat64*);

}  // namespace

extern "C" {

extern const time_function real_time REAL("_time64", "");
extern const process_id_function real_process_id REAL("GetCurrentProcessId", "@0");
extern const read_function real_read REAL("_read", "");
extern const status_function real_status REAL("_fstat64", "");

extern const time_function wrapped_time WRAPPED("_time64", "");
extern const process_id_function wrapped_process_id WRAPPED("GetCurrentProcessId", "@0");
extern const read_function wrapped_read WRAPPED("_read", "");
extern const status_function wrapped_status WRAPPED("_fstat64", "");

const time_function wrapped_time = [](__time64_t* moment) -> __time64_t {
  const __time64_t now = clock_moment ? tick() : real_time(nullptr);
  if (moment != nullptr) *moment = now;
  return now;
};

static DWORD WINAPI this_process_id() {
  return process_id ? DWORD{*process_id} : real_process_id();
}
const process_id_function wrapped_process_id = this_process_id;

const read_function wrapped_read = [](int descriptor, void* buffer, unsigned size) {
  if (files == nullptr) return real_read(descriptor, buffer, size);
  if (read_fails()) return -1;
  const std::size_t most = std::min<std::size_t>(size, files->longest_read);
  const int count = real_read(descriptor, buffer, static_cast<unsigned>(most));
  if (count > 0) files->bytes += static_cast<std::size_t>(count);
  return count;
};

const status_function wrapped_status = [](int descriptor, struct _stat64* status) {
  return status_fails() ? -1 : real_status(descriptor, status);
};
}

// The C++ library is linked statically, so that its calls would meet the hooks too.
extern "C" void* __real_malloc(std::size_t size);
extern "C" void __real_free(void* block);

void* operator new(std::size_t size) {
  void* const block = __real_malloc(size != 0 ? size : 1);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
void operator delete(void* block) noexcept { __real_free(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { __real_free(block); }

namespace runtime_control {

std::size_t size_of_block(void* block) { return _msize(block); }

// The run-time library reads TZ once, and again when it is told to.
void change_zone(const char* zone) {
  _putenv(("TZ=" + std::string(zone != nullptr ? zone : "")).c_str());
  _tzset();
}

void set_zone(const char* zone) { change_zone(zone); }

}  // namespace runtime_control
