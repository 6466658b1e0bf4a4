// The rows of the generated rule tables; tables are searched from the start, and
// the first match counts.
#pragma once

#include <cstdint>

namespace tivex::iban_rules {

struct account_replacement {
  char account[11];
  char replacement[11];
};

struct bank_code_row {
  char bank_code[9];
};

struct account_row {
  char account[11];
};

// The accounts of a former branch, by their first three digits; in the order in
// which the banks' table has them.
struct account_range {  // NOLINT(clang-analyzer-optin.performance.Padding)
  std::uint16_t prefix;
  char former_bank_code[9];
  std::uint64_t low;
  std::uint64_t high;
  char bank_code[9];
};

struct bank_account_replacement {
  char bank_code[9];
  char account[11];
  char replacement[11];
};

struct pair_replacement {
  char bank_code[9];
  char account[11];
  char new_bank_code[9];
  char new_account[11];
};

struct account_iban {
  char account[11];
  char iban[23];
};

struct account_replacement_iban {
  char account[11];
  char new_account[11];
  char iban[23];
};

}  // namespace tivex::iban_rules
