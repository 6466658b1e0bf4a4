// The check-digit methods that need the bank code, of eight characters, as well.
#pragma once

#include "de_account/engines.h"

namespace tivex::check_digits {

using bank_code_method = account_result(const normalised_account& account, const char* bank_code);

bank_code_method method_52;
bank_code_method method_53;
bank_code_method method_b6;
bank_code_method method_c0;

}  // namespace tivex::check_digits
