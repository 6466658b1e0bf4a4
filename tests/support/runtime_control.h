// Control over the C run-time beneath the library, for tests. Each object holds
// as long as it lives.
#pragma once

#include <cstddef>
#include <string>

namespace runtime_control {

// The n-th allocation from now on (counted from 1) fails, or with `all_later` that
// and every later one.
struct failing_allocation {
  explicit failing_allocation(std::size_t n, bool all_later = false);
  ~failing_allocation();
  bool happened() const;
};

// Sets TZ, or removes it for null, as a host may behind the C library's back, where the
// C library looks at it by itself.
void change_zone(const char* zone);

// Sets TZ and tells the C library.
void set_zone(const char* zone);

// The clock stands at a moment of Coordinated Universal Time, and local time is
// that of a zone as TZ names it.
struct fixed_clock {
  fixed_clock(int year, int month, int day, int hour = 12, int minute = 0, int second = 0,
              const char* zone = "UTC");
  ~fixed_clock();
};

// The clock goes on by a second whenever it is read.
struct ticking_clock : fixed_clock {
  ticking_clock(int year, int month, int day, int hour, int minute, int second);
  ~ticking_clock();
};

struct fixed_process_id {
  explicit fixed_process_id(unsigned id);
  ~fixed_process_id();
};

// What the system answers to calls for a file. Reads bring at most so many bytes each,
// and the n-th of them (counted from 1) fails, as does the file's status.
struct file_control {
  std::size_t longest_read = static_cast<std::size_t>(-1);
  std::size_t failing_read = 0;
  int read_error = 0;
  int status_error = 0;
  // What the reads came to.
  std::size_t reads = 0;
  std::size_t bytes = 0;
  bool without_waiting = false;  // on a descriptor that was still open so

  file_control();
  ~file_control();
  file_control(const file_control&) = delete;
  file_control& operator=(const file_control&) = delete;
};

// Counts released blocks, and those that still hold these bytes, be they a text or a
// number's.
struct released_text_watch {
  explicit released_text_watch(std::string text);
  ~released_text_watch();
  std::size_t blocks() const;
  std::size_t blocks_with_text() const;
};

}  // namespace runtime_control
