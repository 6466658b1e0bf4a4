// Lookups in the compiled directory. They read constant data and the clock only.
#pragma once

#include <cstdint>
#include <string_view>

#include "directory/bank_record.h"

namespace tivex {

// The width of a country's bank codes; 0 for a country without a directory
// ("AT", "CH", "DE" and "LI" have one) and for null.
std::size_t bank_code_width(const char* country);

// The record of a national bank code, zeros on its left left out or not. A
// German record is the version that holds now. Returns 1, or 0 when there is no
// such country or bank code. `record` may be null for a caller who only wants to
// know that.
int directory_find_bank(const char* country, const char* bank_code, bank_record* record);

// What checks and conversions ask of a German bank; nothing is copied for them.
struct german_bank {
  std::uint8_t method = 0;     // check-digit method, as its two hexadecimal digits
  std::int32_t iban_rule = 0;  // rule * 100 + version
  bool deleted = false;        // marked for deletion
  std::string_view successor;  // bank code that took over, or empty
};

// The same as directory_find_bank finds for "DE".
bool directory_find_german_bank(std::string_view bank_code, german_bank& bank);

// The same for a BIC of 8 or 11 letters and digits in either case.
int directory_find_bic(const char* bic, bank_record* record);

}  // namespace tivex
