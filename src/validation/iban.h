#pragma once

#include "validation/mod97.h"

namespace tivex {

inline constexpr int IBAN_BAD_CHARACTER = MOD97_BAD_CHARACTER;

// Whether a text is a valid IBAN. If not, and `reason` is not null, the reason
// is stored there: a constant text.
bool iban_validate(const char* iban, const char** reason);

// The remainder of an IBAN's number by ISO 13616, 0 to 96, or
// IBAN_BAD_CHARACTER. The text has at least four characters.
int iban_remainder(const char* iban);

}  // namespace tivex
