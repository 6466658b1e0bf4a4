#pragma once

#include <ctime>

namespace tivex {

// The members of a statement that one of its balances fills.
struct balance_members {
  std::tm& date;
  char (&currency)[4];
  double& amount;
};

// Reads mark, date, currency and amount; what cannot be read stays as it was.
void read_dialect_balance(char* at, char* end, const balance_members& balance);

}  // namespace tivex
