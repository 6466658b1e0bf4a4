#pragma once

#include <string_view>

namespace tivex {

// Checks a creditor reference by ISO 11649: "RF", check digits from 02 to 98 (ISO 7064
// MOD 97-10), and 1 to 21 capital letters or digits. Returns null when it is valid, else
// the reason.
const char* creditor_reference_fault(std::string_view reference);

}  // namespace tivex
