// The blanks that stand in codes and numbers.
#pragma once

#include <cstddef>
#include <string_view>

namespace tivex_program {

// A blank, and those at which no line ends, wide and narrow.
inline constexpr std::string_view written_blanks[] = {" ", "\u00A0", "\u202F", "\u2009"};

// The length of the blank at the start of the text; 0 when there is none.
inline std::size_t blank_length(std::string_view text) {
  for (const std::string_view blank : written_blanks) {
    if (text.starts_with(blank)) return blank.size();
  }
  return 0;
}

inline std::string_view without_blanks_around(std::string_view text) {
  while (blank_length(text) > 0) text.remove_prefix(blank_length(text));
  for (bool found = true; found;) {
    found = false;
    for (const std::string_view blank : written_blanks) {
      if (!text.ends_with(blank)) continue;
      text.remove_suffix(blank.size());
      found = true;
    }
  }
  return text;
}

}  // namespace tivex_program
