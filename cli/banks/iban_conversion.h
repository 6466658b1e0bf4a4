#pragma once

#include <string>

#include "terminal/json_object.h"

namespace tivex_program {

// The IBAN of a German bank code and account number, or why there is none.
struct iban_conversion {
  std::string iban;    // empty when there is none
  std::string bic;     // may be empty all the same
  std::string bank;    // the name of the bank that the IBAN names
  std::string status;  // what was done, or the reason

  bool made() const { return !iban.empty(); }
};

iban_conversion convert_account(const std::string& bank_code, const std::string& account);

// Adds what became of the account to an object that names it.
void add_conversion(json_object& object, const iban_conversion& conversion);

}  // namespace tivex_program
