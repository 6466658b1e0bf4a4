#pragma once

#include <cstdint>

#include "directory/record_layout.h"

namespace tivex {

// What a lookup found. Texts point into `text`; what a kind of record does not
// hold is null or 0.
struct bank_record {
  const char* bic;            // 11 characters or empty
  const char* name;           // of the institution
  const char* postcode;       // null of a BIC
  const char* city;           // null of a BIC
  const char* country;        // of the address; of a BIC its characters 5 and 6
  const char* successor;      // German: bank code that took over, or empty
  std::uint8_t method;        // German: check-digit method, as its two hexadecimal digits
  std::uint8_t scheme_flags;  // BIC: as the register of reachable providers has them
  std::int32_t iban_rule;     // German: rule * 100 + version
  char text[record_text_size];

  bank_record() = default;
  bank_record(const bank_record&) = delete;
  bank_record& operator=(const bank_record&) = delete;
};

}  // namespace tivex
