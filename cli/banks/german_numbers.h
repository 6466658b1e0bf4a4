#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "files/grouped_code.h"
#include "terminal/diagnostics.h"

namespace tivex_program {

inline bool is_number(std::string_view text, std::size_t shortest, std::size_t longest) {
  return text.size() >= shortest && text.size() <= longest &&
         std::all_of(text.begin(), text.end(), [](char c) { return '0' <= c && c <= '9'; });
}

inline bool is_german_account(std::string_view text) { return is_number(text, 1, 10); }
inline bool is_german_bank_code(std::string_view text) { return is_number(text, 8, 8); }

inline constexpr const char* account_wanted = "not a number of 1 to 10 digits";
inline constexpr const char* bank_code_wanted = "not a number of 8 digits";

// For the option that takes a bank code, whose groups are joined; empty when nothing is wrong.
inline std::string german_bank_code_fault(std::string& text) {
  join_groups(text);
  return is_german_bank_code(text) ? "" : "'" + printable(text) + "' is " + bank_code_wanted;
}

}  // namespace tivex_program
