#pragma once

namespace tivex {

// The parts of a German bank's transaction code, such as "NTRF+166+9248+997".
struct bank_transaction_code {
  char type[4] = "";
  int business_code = 0;
  char* primanota = nullptr;
  int text_key_extension = 0;
};

// Cuts the code into its parts. Null stands for none.
bank_transaction_code read_bank_code(char* code);

}  // namespace tivex
