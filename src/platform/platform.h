// What the library asks of the operating system. Nothing else in the library
// calls it directly, so that tests and ports have one place to look at.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ctime>

namespace tivex::platform {

// A moment as a calendar shows it; the month counts from 1.
struct calendar_time {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

std::time_t now();
calendar_time local_calendar(std::time_t moment);
calendar_time utc_calendar(std::time_t moment);

std::uint32_t process_id();

// Twice the usual large page: a smaller block may hold none. It is also more than the
// caches near a processor hold.
inline constexpr std::size_t large_block = std::size_t{4} << 20;

// Overwrites a large block with zeros that go past the caches, in half the time.
void wipe_large_block(void* memory, std::size_t size);

// Makes the compiler suppose that somebody reads and changes the memory here: it stores
// what belongs there and keeps no copy of it anywhere else.
inline void touch(void* memory) { __asm__ volatile("" : : "r"(memory) : "memory"); }

// Overwrites memory with zeros; the compiler cannot remove it. Inline: most of what is
// wiped is a few bytes.
inline void wipe(void* memory, std::size_t size) {
  if (size >= large_block) return wipe_large_block(memory, size);
  std::memset(memory, 0, size);
  touch(memory);
}

// Says that memory will be written to soon. A system that gives memory page by page, as
// it is touched, may give it at once, which is faster; nothing else depends on it.
void expect_writing(void* memory, std::size_t size);

// Says that a new block, if it is large, will be filled from its start: the system may
// then give its memory in larger pieces, which takes far less time.
void prefer_large_pages(void* memory, std::size_t size);

}  // namespace tivex::platform
