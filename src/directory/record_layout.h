// Where things stand in a record of the directory. Shared with the generator.
#pragma once

#include <cstddef>

namespace tivex {

// A BIC record: the BIC, a byte of scheme flags, the institution's name, NUL.
inline constexpr std::size_t bic_length = 11;

// A national record: '_', the country, the bank code, then text fields between
// field_separator, NUL. A German record has a block of numbers in front of each
// version's fields: deletion mark, check-digit method, and the IBAN rule in two
// bytes, most significant first.
inline constexpr char national_mark = '_';
inline constexpr char field_separator = '|';
inline constexpr std::size_t german_block_length = 4;

// The area into which a lookup copies a record's text, with its NUL.
inline constexpr std::size_t record_text_size = 164;

inline constexpr std::size_t record_alignment = 4;

struct country_width {
  const char* country;
  std::size_t width;  // of its bank codes
};

inline constexpr std::size_t widest_bank_code = 8;

// Ended by a null row. Liechtenstein's codes stand among the Swiss ones.
inline constexpr country_width bank_code_widths[] = {
    {"AT", 5}, {"CH", 5}, {"DE", 8}, {"LI", 5}, {nullptr, 0}};

}  // namespace tivex
