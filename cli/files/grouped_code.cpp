#include "files/grouped_code.h"

#include <array>
#include <cstddef>

#include "files/written_blank.h"

namespace tivex_program {
namespace {

// A hyphen, and one at which no line ends.
constexpr std::string_view hyphens[] = {"-", "\u2011"};

constexpr bool is_capital_or_digit(char c) {
  return ('A' <= c && c <= 'Z') || ('0' <= c && c <= '9');
}
bool is_small(char c) { return 'a' <= c && c <= 'z'; }

// The length of what may stand between groups; 0 for anything else.
std::size_t gap_length(std::string_view text) {
  for (const std::string_view hyphen : hyphens) {
    if (text.starts_with(hyphen)) return hyphen.size();
  }
  return blank_length(text);
}

constexpr auto capitals_and_digits = [] {
  std::array<bool, 256> are{};
  for (std::size_t c = 0; c < are.size(); ++c) are[c] = is_capital_or_digit(static_cast<char>(c));
  return are;
}();

}  // namespace

bool is_joined(std::string_view code) {
  // Without a branch for each character.
  bool joined = true;
  for (const char c : code) joined &= capitals_and_digits[static_cast<unsigned char>(c)];
  return joined;
}

bool join_groups(std::string& code) {
  if (is_joined(code)) return false;
  std::string joined;
  for (std::string_view rest = code; !rest.empty();) {
    const std::size_t gap = gap_length(rest);
    if (gap == 0) {
      const char c = rest.front();
      if (!is_capital_or_digit(c) && !is_small(c)) return false;
      joined += is_small(c) ? static_cast<char>(c - 'a' + 'A') : c;
    }
    rest.remove_prefix(gap == 0 ? 1 : gap);
  }
  code = joined;
  return true;
}

std::string joined_groups(std::string_view code) {
  std::string joined(code);
  join_groups(joined);
  return joined;
}

}  // namespace tivex_program
