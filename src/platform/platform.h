// What the library asks of the operating system. Nothing else in the library
// calls it directly, so that tests and ports have one place to look at.
#pragma once

#include <cstddef>
#include <cstdint>
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

// Overwrites memory with zeros by a call that the compiler cannot remove.
void wipe(void* memory, std::size_t size);

// Says that a new block, if it is large, will be filled from its start: the system may
// then give its memory in larger pieces, which takes far less time.
void prefer_large_pages(void* memory, std::size_t size);

}  // namespace tivex::platform
