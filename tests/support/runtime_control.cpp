#include "support/runtime_control.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "support/runtime_hooks.h"

namespace runtime_control {

namespace {

std::atomic<std::size_t> allocations_left = 0;  // until one fails; 0: none will
std::atomic<bool> all_later_fail = false;
std::atomic<bool> failure_happened = false;
std::time_t clock_step = 0;
std::string watched_text;
std::atomic<std::size_t> watched_blocks = 0;
std::atomic<std::size_t> watched_blocks_with_text = 0;

bool allocation_fails() {
  if (all_later_fail && failure_happened) return true;
  if (allocations_left == 0 || --allocations_left > 0) return false;
  failure_happened = true;
  return true;
}

// What a test itself has left in released memory must not be found in a block, nor behind the
// bytes that are in use.
void* without_old_content(void* block, std::size_t used = 0) {
  if (block != nullptr && !watched_text.empty()) {
    std::memset(static_cast<char*>(block) + used, 0xA5, size_of_block(block) - used);
  }
  return block;
}

void look_at(void* block) {
  if (block == nullptr || watched_text.empty()) return;
  ++watched_blocks;
  const std::string_view bytes(static_cast<const char*>(block), size_of_block(block));
  if (bytes.find(watched_text) != std::string_view::npos) ++watched_blocks_with_text;
}

}  // namespace

std::optional<std::time_t> clock_moment;
std::optional<unsigned> process_id;
file_control* files = nullptr;

std::time_t tick() {
  const std::time_t now = *clock_moment;
  *clock_moment += clock_step;
  return now;
}

bool status_fails() {
  if (files == nullptr || files->status_error == 0) return false;
  errno = files->status_error;
  return true;
}

bool read_fails() {
  if (++files->reads != files->failing_read) return false;
  errno = files->read_error;
  return true;
}

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
  set_zone(zone);
}
fixed_clock::~fixed_clock() {
  clock_moment.reset();
  set_zone(nullptr);
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

void* __wrap_malloc(std::size_t size) {
  return allocation_fails() ? nullptr : without_old_content(__real_malloc(size));
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
  return allocation_fails() ? nullptr
                            : without_old_content(__real_calloc(count, size), count * size);
}

void* __wrap_realloc(void* block, std::size_t size) {
  return allocation_fails() ? nullptr : __real_realloc(block, size);
}

void __wrap_free(void* block) {
  look_at(block);
  __real_free(block);
}
}
