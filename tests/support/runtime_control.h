// Control over the C run-time beneath the library, for tests.
#pragma once

#include <cstddef>
#include <ctime>
#include <string>

namespace runtime_control {

// As long as it lives, the n-th allocation from now on (counted from 1) fails,
// or with `all_later` that and every later one. The compilation of a pattern
// counts as an allocation.
class failing_allocation {
 public:
  explicit failing_allocation(std::size_t n, bool all_later = false);
  ~failing_allocation();
  bool happened() const;
};

// As long as it lives, the clock stands at a moment of Coordinated Universal Time.
class fixed_clock {
 public:
  fixed_clock(int year, int month, int day, int hour = 12, int minute = 0, int second = 0);
  ~fixed_clock();
};

// As long as it lives, local time is that of a zone as TZ names it.
class fixed_zone {
 public:
  explicit fixed_zone(const char* zone);
  ~fixed_zone();
};

class fixed_process_id {
 public:
  explicit fixed_process_id(unsigned id);
  ~fixed_process_id();
};

// As long as it lives, counts released blocks that still hold a text.
class released_text_watch {
 public:
  explicit released_text_watch(std::string text);
  ~released_text_watch();
  std::size_t blocks_released() const;
  std::size_t blocks_with_text() const;
};

}  // namespace runtime_control
