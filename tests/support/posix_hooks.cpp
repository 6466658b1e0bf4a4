#include <fcntl.h>
#include <malloc.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include "support/runtime_hooks.h"

namespace runtime_control {

std::size_t size_of_block(void* block) { return malloc_usable_size(block); }

void change_zone(const char* zone) {
  if (zone != nullptr) {
    setenv("TZ", zone, 1);
  } else {
    unsetenv("TZ");
  }
}

void set_zone(const char* zone) {
  change_zone(zone);
  tzset();
}

}  // namespace runtime_control

// The linker sends the library's calls here.
using namespace runtime_control;

extern "C" {

std::time_t __real_time(std::time_t* moment);
pid_t __real_getpid(void);
ssize_t __real_read(int descriptor, void* buffer, std::size_t size);
// The C library has one of them or both.
[[gnu::weak]] int __real_fstat(int descriptor, struct stat* status);
[[gnu::weak]] int __real_fstat64(int descriptor, struct stat64* status);

std::time_t __wrap_time(std::time_t* moment) {
  const std::time_t now = clock_moment ? tick() : __real_time(nullptr);
  if (moment != nullptr) *moment = now;
  return now;
}

pid_t __wrap_getpid(void) { return process_id ? static_cast<pid_t>(*process_id) : __real_getpid(); }

ssize_t __wrap_read(int descriptor, void* buffer, std::size_t size) {
  if (files == nullptr) return __real_read(descriptor, buffer, size);
  files->without_waiting |= (fcntl(descriptor, F_GETFL) & O_NONBLOCK) != 0;
  if (read_fails()) return -1;
  const ssize_t count = __real_read(descriptor, buffer, std::min(size, files->longest_read));
  if (count > 0) files->bytes += static_cast<std::size_t>(count);
  return count;
}

int __wrap_fstat(int descriptor, struct stat* status) {
  return status_fails() ? -1 : __real_fstat(descriptor, status);
}

int __wrap_fstat64(int descriptor, struct stat64* status) {
  return status_fails() ? -1 : __real_fstat64(descriptor, status);
}
}
