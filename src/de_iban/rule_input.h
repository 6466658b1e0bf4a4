#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

#include "de_account/normalised_account.h"
#include "platform/platform.h"

namespace tivex::iban_rules {

// The status that tells why an IBAN could not be made, or how it was.
enum conversion_status : std::uint8_t {
  STATUS_AS_GIVEN = 0,
  STATUS_ACCOUNT_REPLACED = 1,
  STATUS_BANK_UNKNOWN = 10,
  STATUS_ACCOUNT_INVALID = 11,
  STATUS_BANK_REFUSES = 12,
  STATUS_SUCCESSOR_USED = 13,
  STATUS_BANK_CODE_REPLACED = 15,
  STATUS_ACCOUNT_REFUSED = 50,
};

inline constexpr std::size_t account_length = 10;
inline constexpr std::size_t bank_code_length = 8;
inline constexpr std::size_t german_iban_length = 22;
inline constexpr std::size_t iban_buffer_size = 35;

// What a conversion works on; a rule may change it. Texts of the right length,
// whatever their characters.
struct rule_input {
  char account[account_length + 1] = {};
  char bank_code[bank_code_length + 1] = {};
  std::uint8_t method = 0;
  std::int8_t check_result = 0;
  std::uint8_t status = STATUS_AS_GIVEN;

  rule_input() = default;
  rule_input(const rule_input&) = delete;
  rule_input& operator=(const rule_input&) = delete;
  ~rule_input() { platform::wipe(account, sizeof account); }

  std::string_view account_text() const { return {account, account_length}; }
  std::string_view bank_code_text() const { return {bank_code, bank_code_length}; }
  check_digits::normalised_account digits() const {
    return check_digits::normalised_account(account_text());
  }

  bool has_account(std::string_view text) const { return account_text() == text; }
  bool has_bank_code(std::string_view text) const { return bank_code_text() == text; }
  void set_account(std::string_view text) {
    std::memcpy(account, text.data(), account_length);
    platform::touch(account);
  }
  void set_bank_code(std::string_view text) {
    std::memcpy(bank_code, text.data(), bank_code_length);
  }
};

// The account without its first two positions and with the sub-account 00 behind it.
inline check_digits::normalised_account shifted_account(const rule_input& input) {
  return check_digits::normalised_account(input.digits().text(3), "00");
}

}  // namespace tivex::iban_rules
