#pragma once

namespace tivex {

// Checks the ISO 7064 MOD 97-10 check digits of a SEPA creditor identifier of
// at least seven characters: country code, check digits, creditor business code
// (which takes no part and is not looked at), national identifier. Returns null
// when it is valid, else the reason.
const char* creditor_identifier_fault(const char* id);

}  // namespace tivex
