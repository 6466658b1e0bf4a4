#pragma once

#include "de_account/engines.h"

namespace tivex::check_digits {

// Checks an account by a method, of which some compute with the bank code's eight
// characters, too; without one they do not check.
account_result check_account(const normalised_account& account, const char* bank_code,
                             unsigned char method);

}  // namespace tivex::check_digits
