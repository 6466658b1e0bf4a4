// German bank codes that their banks give up.
#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

struct given_up_bank {
  bool deleted = false;   // marked for deletion in the directory
  std::string successor;  // the bank code that has taken over, empty for none
};

given_up_bank given_up_bank_of(std::string_view bank_code);

// The bank code of a German IBAN, empty for any other.
std::string_view german_bank_code(std::string_view iban);

// The IBAN that takes the place of one whose bank code has a successor, by the rules of both
// banks; empty when there is none.
std::string successor_iban(std::string_view iban);

}  // namespace tivex_program
