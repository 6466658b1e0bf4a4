#include "banks/iban_conversion.h"

#include <tivex.h>

#include "banks/bank_handle.h"
#include "banks/german_numbers.h"
#include "platform/exhausted_memory.h"

namespace tivex_program {
namespace {

struct status_text {
  int status;
  const char* made;
  const char* refused;
};

constexpr const char* no_iban = "the bank states no IBAN for this account";

constexpr status_text status_texts[] = {
    {TIVEX_CONVERSION_AS_GIVEN, "converted", no_iban},
    {TIVEX_CONVERSION_ACCOUNT_REPLACED, "account number replaced", no_iban},
    {TIVEX_CONVERSION_BANK_CODE_REPLACED, "bank code replaced", no_iban},
    {TIVEX_CONVERSION_SUCCESSOR_USED, "successor bank code used",
     "no IBAN at the successor bank, or the account number fails its check"},
    {TIVEX_CONVERSION_BANK_UNKNOWN, "", "bank code not in the directory"},
    {TIVEX_CONVERSION_ACCOUNT_INVALID, "", "account number fails the bank's check"},
    {TIVEX_CONVERSION_BANK_REFUSES, "", "the bank does not allow a conversion"},
    {TIVEX_CONVERSION_ACCOUNT_REFUSED, "account number fails the bank's check", no_iban},
};

std::string text_of(int status, bool made) {
  for (const status_text& row : status_texts) {
    if (row.status == status) return made ? row.made : row.refused;
  }
  return "unknown status " + std::to_string(status);
}

std::string name_of_bank(const std::string& bank_code) {
  tivex_bank_info_t* found = nullptr;
  if (tivex_bankid_check("DE", bank_code.c_str(), &found) == -3) end_for_want_of_memory();
  const bank_handle bank(found);
  return bank ? bank->name : "";
}

}  // namespace

iban_conversion convert_account(const std::string& bank_code, const std::string& account) {
  iban_conversion conversion;
  if (!is_german_bank_code(bank_code)) {
    conversion.status = std::string("bank code is ") + bank_code_wanted;
  } else if (!is_german_account(account)) {
    conversion.status = std::string("account is ") + account_wanted;
  } else {
    char iban[35] = "";
    unsigned char status = 0;
    const bool made =
        tivex_iban_convert("DE", account.c_str(), bank_code.c_str(), iban, &status) == 1;
    conversion.status = text_of(status, made);
    if (!made) return conversion;
    conversion.iban = iban;
    char bic[12] = "";
    tivex_iban_getBIC(iban, bic);
    conversion.bic = bic;
    conversion.bank = name_of_bank(conversion.iban.substr(4, 8));
  }
  return conversion;
}

void add_conversion(json_object& object, const iban_conversion& conversion) {
  object.add_text_or_null("iban", conversion.iban);
  object.add_text_or_null("bic", conversion.bic);
  object.add_text_or_null("bank", conversion.bank);
  object.add_text("status", conversion.status);
  object.add_flag("converted", conversion.made());
}

}  // namespace tivex_program
