// The least that a check of an IBAN costs: its length, and the remainder modulo 97 of
// its number in steps of 64 bits. No country, no pattern, no bank.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

// 1 for a text of a possible length whose number leaves the remainder 1.
inline int iban_kernel(const char* iban) {
  constexpr std::size_t shortest = 15;
  constexpr std::size_t longest = 34;
  constexpr std::uint64_t large = UINT64_MAX / 100 - 1;
  const std::size_t length = std::strlen(iban);
  if (length < shortest || length > longest) return -1;
  std::uint64_t number = 0;
  const auto append = [&number](char c) {
    if (number > large) number %= 97;
    const bool digit = c <= '9';
    number =
        number * (digit ? 10 : 100) + static_cast<std::uint64_t>(digit ? c - '0' : c - 'A' + 10);
  };
  for (std::size_t place = 4; place < length; ++place) append(iban[place]);
  for (std::size_t place = 0; place < 4; ++place) append(iban[place]);
  return number % 97 == 1 ? 1 : -1;
}
