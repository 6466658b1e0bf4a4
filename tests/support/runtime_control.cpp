#include "support/runtime_control.h"

#include <fcntl.h>
#include <malloc.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <optional>
#include <string_view>

namespace runtime_control {

namespace {

std::atomic<std::size_t> allocations_left = 0;  // until one fails; 0: none will
std::atomic<bool> all_later_fail = false;
std::atomic<bool> failure_happened = false;
std::optional<std::time_t> clock_moment;
std::time_t clock_step = 0;
std::optional<unsigned> process_id;
file_control* files = nullptr;
std::string watched_text;
std::atomic<std::size_t> watched_blocks = 0;
std::atomic<std::size_t> watched_blocks_with_text = 0;

bool allocation_fails() {
  if (all_later_fail && failure_happened) return true;
  if (allocations_left == 0 || --allocations_left > 0) return false;
  failure_happened = true;
  return true;
}

bool status_fails() {
  if (files == nullptr || files->status_error == 0) return false;
  errno = files->status_error;
  return true;
}

// What a test itself has left in released memory must not be found in a block.
void* without_old_content(void* block) {
  if (block != nullptr && !watched_text.empty())
    std::memset(block, 0xA5, malloc_usable_size(block));
  return block;
}

void look_at(void* block) {
  if (block == nullptr || watched_text.empty()) return;
  ++watched_blocks;
  const std::string_view bytes(static_cast<const char*>(block), malloc_usable_size(block));
  if (bytes.find(watched_text) != std::string_view::npos) ++watched_blocks_with_text;
}

}  // namespace

failing_allocation::failing_allocation(std::size_t n, bool all_later) {
  failure_happened = false;
  all_later_fail = all_later;
  allocations_left = n;
}
failing_allocation::~failing_allocation() {
  allocations_left = 0;
  all_later_fail = false;
}
bool failing_allocation::happened() const { return failure_happened; }

fixed_clock::fixed_clock(int year, int month, int day, int hour, int minute, int second,
                         const char* zone) {
  const std::chrono::sys_days date = std::chrono::year(year) / month / day;
  clock_moment =
      date.time_since_epoch() / std::chrono::seconds(1) + hour * 3600 + minute * 60 + second;
  setenv("TZ", zone, 1);
  tzset();
}
fixed_clock::~fixed_clock() {
  clock_moment.reset();
  unsetenv("TZ");
  tzset();
}

ticking_clock::ticking_clock(int year, int month, int day, int hour, int minute, int second)
    : fixed_clock(year, month, day, hour, minute, second) {
  clock_step = 1;
}
ticking_clock::~ticking_clock() { clock_step = 0; }

fixed_process_id::fixed_process_id(unsigned id) { process_id = id; }
fixed_process_id::~fixed_process_id() { process_id.reset(); }

file_control::file_control() { files = this; }
file_control::~file_control() { files = nullptr; }

released_text_watch::released_text_watch(std::string text) {
  watched_blocks = 0;
  watched_blocks_with_text = 0;
  watched_text = std::move(text);
}
released_text_watch::~released_text_watch() { watched_text.clear(); }
std::size_t released_text_watch::blocks() const { return watched_blocks; }
std::size_t released_text_watch::blocks_with_text() const { return watched_blocks_with_text; }

}  // namespace runtime_control

// The linker sends the library's calls here.
using namespace runtime_control;

extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* block, std::size_t size);
void __real_free(void* block);
std::time_t __real_time(std::time_t* moment);
pid_t __real_getpid(void);
ssize_t __real_read(int descriptor, void* buffer, std::size_t size);
// The C library has one of them or both.
[[gnu::weak]] int __real_fstat(int descriptor, struct stat* status);
[[gnu::weak]] int __real_fstat64(int descriptor, struct stat64* status);

void* __wrap_malloc(std::size_t size) {
  return allocation_fails() ? nullptr : without_old_content(__real_malloc(size));
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
  return allocation_fails() ? nullptr : __real_calloc(count, size);
}

void* __wrap_realloc(void* block, std::size_t size) {
  return allocation_fails() ? nullptr : __real_realloc(block, size);
}

void __wrap_free(void* block) {
  look_at(block);
  __real_free(block);
}

std::time_t __wrap_time(std::time_t* moment) {
  const std::time_t now = clock_moment ? *clock_moment : __real_time(nullptr);
  if (clock_moment) *clock_moment += clock_step;
  if (moment != nullptr) *moment = now;
  return now;
}

pid_t __wrap_getpid(void) { return process_id ? static_cast<pid_t>(*process_id) : __real_getpid(); }

ssize_t __wrap_read(int descriptor, void* buffer, std::size_t size) {
  if (files == nullptr) return __real_read(descriptor, buffer, size);
  files->without_waiting |= (fcntl(descriptor, F_GETFL) & O_NONBLOCK) != 0;
  if (++files->reads == files->failing_read) {
    errno = files->read_error;
    return -1;
  }
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
