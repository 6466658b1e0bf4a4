// The forms that fields of the edition take.
#pragma once

#include <string_view>

namespace tivex_edition {

bool is_digits(std::string_view text, std::size_t count);

// A column of a text file: which texts fit, and how to say what is wanted.
struct column_form {
  const char* name;
  bool (*fits)(std::string_view text);
  const char* wanted;
};

bool is_bank_code5(std::string_view text);
bool is_bank_code8(std::string_view text);
bool is_bank_code8_or_empty(std::string_view text);
bool is_bic(std::string_view text);  // 11 capital letters and digits
bool is_bic_or_empty(std::string_view text);
bool is_date(std::string_view text);  // a day of the calendar, yyyy-mm-dd
bool is_date_or_empty(std::string_view text);
bool is_flag(std::string_view text);        // 0 or 1
bool is_flags_byte(std::string_view text);  // 0x and two hexadecimal digits, capitals
bool is_method(std::string_view text);      // two hexadecimal digits, capitals
bool is_iban_rule(std::string_view text);   // rule * 100 + version, rules 0 to 57
bool is_country_or_empty(std::string_view text);
bool is_austria(std::string_view text);
bool is_germany(std::string_view text);

bool is_number(std::string_view text);       // without zeros in front
bool is_account(std::string_view text);      // 10 digits
bool is_prefix(std::string_view text);       // 3 digits, the first not 0
bool is_purpose(std::string_view text);      // 4 capital letters or digits
bool is_german_iban(std::string_view text);  // with right check digits

// Text as a record can hold it: UTF-8 without control characters, '|' and
// blanks at its ends. Empty is fine.
bool is_record_text(std::string_view text);

}  // namespace tivex_edition
