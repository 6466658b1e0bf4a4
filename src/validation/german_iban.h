#pragma once

namespace tivex {

// What is wrong with the bank code or the account number of a German IBAN, whose
// form and checksum are right; null when nothing is.
const char* german_iban_fault(const char* iban);

}  // namespace tivex
