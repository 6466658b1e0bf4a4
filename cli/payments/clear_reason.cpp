#include "payments/clear_reason.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

#include "files/transliteration.h"

namespace tivex_program {
namespace {

// How the library says that a character is refused.
constexpr std::string_view character_marks[] = {"nvalid character '", "has character '",
                                                "has byte 0x"};
// And that a text has the wrong length, where it says which is right.
constexpr std::string_view length_mark = "(must be 1-";
constexpr std::string_view long_name = "Name too long";
constexpr std::size_t longest_name = 70;

bool is_about_character(std::string_view reason) {
  return std::ranges::any_of(character_marks, [reason](std::string_view mark) {
    return reason.find(mark) != std::string_view::npos;
  });
}

// The most bytes that a text may have; 0 when the reason does not say.
std::size_t most_bytes(std::string_view reason) {
  if (reason.ends_with(long_name)) return longest_name;
  const std::size_t at = reason.find(length_mark);
  std::size_t most = 0;
  if (at != std::string_view::npos) {
    const std::string_view digits = reason.substr(at + length_mark.size());
    std::from_chars(digits.data(), digits.data() + digits.size(), most);
  }
  return most;
}

void tell_character(row_fault& fault, std::string_view character) {
  fault.reason = "character not admitted";
  fault.detail = shown_character(character);
  const auto written = table_text(character);
  if (!written) {
    fault.advice = "replace it";
  } else if (written->empty()) {
    fault.advice = "--transliterate leaves it out";
  } else {
    fault.advice = "--transliterate writes '" + std::string(*written) + "'";
  }
}

}  // namespace

void make_clear(row_fault& fault, std::string_view value, admitted_characters& characters) {
  if (is_about_character(fault.reason)) {
    const std::string_view refused =
        first_refused(value, [&](std::string_view c) { return characters.admits(fault.key, c); });
    if (!refused.empty()) tell_character(fault, refused);
    return;
  }
  const std::size_t most = most_bytes(fault.reason);
  if (most == 0 || value.size() <= most) return;
  fault.reason = "too long";
  fault.detail = std::to_string(count_characters(value)) + " characters in " +
                 std::to_string(value.size()) + " bytes, at most " + std::to_string(most) +
                 " bytes";
  fault.advice = "shorten it";
}

}  // namespace tivex_program
