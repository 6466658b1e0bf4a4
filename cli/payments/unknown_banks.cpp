#include "payments/unknown_banks.h"

#include <tivex.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace tivex_program {
namespace {

// Of Malta, whose IBANs have room: no bank there has such a code.
constexpr std::string_view country = "MT";
constexpr std::string_view bank = "TVXZ00000";
constexpr std::size_t check_digits = 2;
constexpr std::size_t length_of_number = 18;
constexpr std::size_t length = country.size() + check_digits + bank.size() + length_of_number;

constexpr std::string_view german = "DE";
constexpr std::size_t german_length = 22;
constexpr std::size_t german_bank_code = 8;

// Behind those of all rows.
constexpr std::uint64_t own_number = 999'999'999'999'999'999;

bool is_digit(char c) { return '0' <= c && c <= '9'; }

// The remainder of an IBAN's number by 97, which is 1 when its check digits are right.
unsigned remainder(std::string_view iban) {
  unsigned rest = 0;
  const auto append = [&rest](char c) {
    const unsigned value =
        is_digit(c) ? static_cast<unsigned>(c - '0') : static_cast<unsigned>(c - 'A') + 10;
    rest = (rest * (value < 10 ? 10 : 100) + value) % 97;
  };
  const std::size_t head = country.size() + check_digits;
  for (const char c : iban.substr(head)) append(c);
  for (const char c : iban.substr(0, head)) append(c);
  return rest;
}

std::string stand_in(std::uint64_t number) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%018llu", static_cast<unsigned long long>(number));
  std::string iban = std::string(country) + "00" + std::string(bank) + digits;
  const unsigned check = 98 - remainder(iban);
  iban[2] = static_cast<char>('0' + check / 10);
  iban[3] = static_cast<char>('0' + check % 10);
  return iban;
}

bool is_known_bank(const std::string& bank_code) {
  return tivex_bankid_check("DE", bank_code.c_str(), nullptr) == 1;
}

}  // namespace

bool unknown_banks::is_stand_in(std::string_view iban) {
  return iban.size() == length && iban.starts_with(country) &&
         iban.substr(country.size() + check_digits).starts_with(bank);
}

bool unknown_banks::is_unknown(const std::string& iban) {
  return iban.size() == german_length && iban.starts_with(german) &&
         std::all_of(iban.begin() + german.size(), iban.end(), is_digit) && remainder(iban) == 1 &&
         !is_known_bank(iban.substr(german.size() + check_digits, german_bank_code));
}

std::string unknown_banks::own_stand_in() { return stand_in(own_number); }

bool unknown_banks::replace(std::string& iban) {
  if (!is_unknown(iban)) return false;
  const std::string other = stand_in(ibans_.size());
  ibans_.push_back(iban);
  iban = other;
  return true;
}

// Which of the IBANs the text stands for, behind them the own one; none where it does not.
std::optional<std::size_t> unknown_banks::place_of(std::string_view iban) const {
  if (!is_stand_in(iban)) return std::nullopt;
  std::uint64_t number = 0;
  const std::string_view digits = iban.substr(length - length_of_number);
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (number == own_number && !own_.empty()) return ibans_.size();
  if (number >= ibans_.size()) return std::nullopt;
  return static_cast<std::size_t>(number);
}

std::string_view unknown_banks::iban_at(std::size_t place) const {
  return place == ibans_.size() ? own_ : ibans_[place];
}

std::string_view unknown_banks::of(std::string_view iban) const {
  const std::optional<std::size_t> place = place_of(iban);
  return place ? iban_at(*place) : iban;
}

bool unknown_banks::put_back(char* document) const {
  constexpr std::string_view start = "<IBAN>";
  static_assert(german_length <= length);
  // The own one stands in each payment block.
  std::vector<bool> seen(ibans_.size() + 1, false);
  std::size_t put = 0;
  char* to = document;
  const auto keep = [&to](std::string_view part) {
    std::memmove(to, part.data(), part.size());
    to += part.size();
  };
  std::string_view rest = document;
  const std::size_t size = rest.size();
  for (std::size_t at = 0; (at = rest.find(start)) != std::string_view::npos;) {
    at += start.size();
    keep(rest.substr(0, at));
    rest.remove_prefix(at);
    if (!is_stand_in(rest.substr(0, length))) continue;
    const std::optional<std::size_t> place = place_of(rest.substr(0, length));
    if (!place || (seen[*place] && *place < ibans_.size())) return false;
    put += seen[*place] ? 0 : 1;
    seen[*place] = true;
    rest.remove_prefix(length);
    keep(iban_at(*place));
  }
  keep(rest);
  std::memset(to, 0, static_cast<std::size_t>(document + size - to));
  return put == ibans_.size() + (own_.empty() ? 0 : 1);
}

}  // namespace tivex_program
