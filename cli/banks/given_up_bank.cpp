#include "banks/given_up_bank.h"

#include <tivex.h>

namespace tivex_program {
namespace {

constexpr std::size_t iban_length = 22;
constexpr std::size_t bank_code_start = 4;
constexpr std::size_t bank_code_length = 8;

}  // namespace

given_up_bank given_up_bank_of(std::string_view bank_code) {
  char successor[bank_code_length + 1] = "";
  const int marked = tivex_bankid_getSuccessor(std::string(bank_code).c_str(), successor);
  return {marked == 1, successor};
}

std::string_view german_bank_code(std::string_view iban) {
  if (iban.size() != iban_length || !iban.starts_with("DE")) return {};
  return iban.substr(bank_code_start, bank_code_length);
}

std::string successor_iban(std::string_view iban) {
  const std::string bank_code(german_bank_code(iban));
  if (bank_code.empty()) return {};
  const std::string account(iban.substr(bank_code_start + bank_code_length));
  char converted[35] = "";
  unsigned char status = 0;
  const bool made =
      tivex_iban_convert("DE", account.c_str(), bank_code.c_str(), converted, &status) == 1;
  return made && status == TIVEX_CONVERSION_SUCCESSOR_USED ? converted : "";
}

}  // namespace tivex_program
