#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// Takes the blanks and hyphens between the groups out of an IBAN, a BIC, a creditor
// identifier or a bank code and raises small letters. Returns whether that changed it; a text
// with other characters than letters and digits stays as it is.
bool join_groups(std::string& code);

// Whether it is capital letters and digits only.
bool is_joined(std::string_view code);

// The same of a copy.
std::string joined_groups(std::string_view code);

}  // namespace tivex_program
