// The notation of the table of methods: engines with their parameters, chains of
// variants, and conditions on the account that choose one.
#pragma once

#include <cstddef>
#include <string_view>

#include "de_account/engines.h"

namespace tivex::check_digits {

using account_method = account_result(const normalised_account& account);
using account_condition = bool(const normalised_account& account);

// The engines: modulus, position P of the check digit, weights of positions 10 to
// 1. M10 and M11 have their modulus in the name.
template <int modulus, int P, int... weights>
account_result XS(const normalised_account& account) {
  return check_weighted_xsum(account, modulus, P, weights...);
}

template <int P, int... weights>
account_result M10(const normalised_account& account) {
  return check_weighted_mod10(account, P, weights...);
}

template <int P, int... weights>
account_result M11(const normalised_account& account) {
  return check_weighted_mod11(account, P, weights...);
}

template <int modulus, int P, int... weights>
account_result MOD(const normalised_account& account) {
  return check_weighted_mod(account, modulus, P, weights...);
}

// The first result that is not INVALID; that of the last variant otherwise.
template <account_method&... variants>
account_result first_of(const normalised_account& account) {
  account_result result = INVALID;
  static_cast<void>((((result = variants(account)) != INVALID) || ...));
  return result;
}

template <account_condition& condition, account_method& then, account_method& otherwise>
account_result choose(const normalised_account& account) {
  return condition(account) ? then(account) : otherwise(account);
}

// Results without a check.
inline account_result accept(const normalised_account&) { return VALID; }
inline account_result unchecked(const normalised_account&) { return NOT_CHECKED; }
inline account_result reject(const normalised_account&) { return INVALID; }

template <std::size_t size>
struct literal_text {
  char text[size] = {};
  // NOLINTNEXTLINE(google-explicit-constructor): stands for the literal itself
  constexpr literal_text(const char (&literal)[size]) {
    for (std::size_t index = 0; index < size; ++index) text[index] = literal[index];
  }
};

// The account has these characters from a position on.
template <int position, literal_text characters>
bool at(const normalised_account& account) {
  return account.has({characters.text, sizeof characters.text - 1}, position);
}

// The character at a position is this one or a later one.
template <int position, char first>
bool from(const normalised_account& account) {
  return account.c(position) >= first;
}

// The account's value lies between two values, both included.
template <std::uint64_t low, std::uint64_t high>
bool in(const normalised_account& account) {
  const std::uint64_t value = account.value();
  return low <= value && value <= high;
}

template <std::uint64_t limit>
bool below(const normalised_account& account) {
  return account.value() < limit;
}

template <account_condition&... conditions>
bool any_of(const normalised_account& account) {
  return (conditions(account) || ...);
}

template <account_condition&... conditions>
bool all_of(const normalised_account& account) {
  return (conditions(account) && ...);
}

template <account_condition& condition>
bool is_not(const normalised_account& account) {
  return !condition(account);
}

}  // namespace tivex::check_digits
