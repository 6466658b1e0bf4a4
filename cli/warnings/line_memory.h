#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tivex_program {

// The number with another one mixed into it.
std::uint64_t mixed(std::uint64_t number, std::uint64_t further);

// A number for a text by which it is told from others: two of half a million share one in one
// of a hundred million files.
std::uint64_t text_number(std::string_view text, std::uint64_t start = 0);

// What stood on a line: a number for it, and a little about it.
struct line_mark {
  std::uint64_t number = 0;
  std::uint32_t line = 0;  // from 1
  std::uint32_t mark = 0;
};

// Remembers on which line something stood first, in sixteen bytes each.
class line_memory {
 public:
  // Calls tell(later, first) for what stood on an earlier line, too; not at once, for the memory
  // that it needs is asked for a few lines ahead, but by `finish` at the latest.
  template <typename tell_function>
  void add(const line_mark& added, tell_function tell) {
    line_mark& oldest = waiting_[next_++ % waiting_.size()];
    look_up(oldest, tell);
    oldest = added;
    fetch(added.number);
  }

  template <typename tell_function>
  void finish(tell_function tell) {
    for (std::size_t i = 0; i < waiting_.size(); ++i) add({}, tell);
  }

 private:
  template <typename tell_function>
  void look_up(const line_mark& later, tell_function& tell) {
    if (later.line == 0) return;
    const line_mark& first = find_or_add(later);
    if (&first != &later) tell(later, first);
  }

  // Returns what is remembered under the number, or remembers and returns this one.
  const line_mark& find_or_add(const line_mark& wanted);
  void fetch(std::uint64_t number) const;
  line_mark& place_of(std::uint64_t number);
  void grow();

  std::array<line_mark, 16> waiting_{};
  std::size_t next_ = 0;
  std::vector<line_mark> places_;  // a power of two of them, or none; free ones have no line
  std::size_t count_ = 0;
};

}  // namespace tivex_program
