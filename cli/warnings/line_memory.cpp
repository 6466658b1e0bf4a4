#include "warnings/line_memory.h"

#include <algorithm>
#include <cstring>

namespace tivex_program {

std::uint64_t mixed(std::uint64_t number, std::uint64_t further) {
  number = (number ^ further) * 0x9E3779B97F4A7C15;
  return number ^ number >> 32;
}

std::uint64_t text_number(std::string_view text, std::uint64_t start) {
  std::uint64_t number = mixed(start, text.size());
  std::uint64_t part = 0;
  // A copy of known length is one instruction.
  for (; text.size() >= sizeof part; text.remove_prefix(sizeof part)) {
    std::memcpy(&part, text.data(), sizeof part);
    number = mixed(number, part);
  }
  part = 0;
  for (const char c : text) part = part << 8 | static_cast<unsigned char>(c);
  return mixed(number, part);
}

const line_mark& line_memory::find_or_add(const line_mark& wanted) {
  // Half of the places stay free.
  if (count_ * 2 >= places_.size()) grow();
  line_mark& found = place_of(wanted.number);
  if (found.line != 0) return found;
  found = wanted;
  ++count_;
  return wanted;
}

void line_memory::fetch(std::uint64_t number) const {
  if (!places_.empty()) {
    __builtin_prefetch(&places_[static_cast<std::size_t>(number) & (places_.size() - 1)]);
  }
}

line_mark& line_memory::place_of(std::uint64_t number) {
  const std::size_t mask = places_.size() - 1;
  std::size_t at = static_cast<std::size_t>(number) & mask;
  while (places_[at].line != 0 && places_[at].number != number) at = (at + 1) & mask;
  return places_[at];
}

void line_memory::grow() {
  constexpr std::size_t least = 1024;
  std::vector<line_mark> before(std::max(least, places_.size() * 2));
  before.swap(places_);
  for (const line_mark& each : before) {
    if (each.line != 0) place_of(each.number) = each;
  }
}

}  // namespace tivex_program
