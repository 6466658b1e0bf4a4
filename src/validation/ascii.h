// Letters, digits and case as ASCII has them, whatever locale the host has set.
#pragma once

namespace tivex {

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }
constexpr bool is_upper(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool is_lower(char c) { return c >= 'a' && c <= 'z'; }
constexpr bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

constexpr char to_upper(char c) { return is_lower(c) ? static_cast<char>(c - 'a' + 'A') : c; }

// Whether two texts are the same but for the case of their letters.
constexpr bool equal_ignoring_case(const char* left, const char* right) {
  for (; *left != '\0' && to_upper(*left) == to_upper(*right); ++left, ++right) {
  }
  return to_upper(*left) == to_upper(*right);
}

}  // namespace tivex
