// How publishers write what the edition's fields hold.
#pragma once

#include <string>
#include <string_view>

namespace tivex_edition {

// Without blanks at its ends.
std::string_view trimmed(std::string_view text);

// A number with zeros in front up to the bank code's 5 digits; other text as it is.
std::string full_bank_code(std::string_view text);

// In capitals, a BIC of 8 characters with XXX for the head office.
std::string full_bic(std::string_view text);

// The first date in the text that is written dd.mm.yyyy, yyyy-mm-dd or yyyymmdd,
// as yyyy-mm-dd; empty when there is none.
std::string date_in(std::string_view text);

}  // namespace tivex_edition
