#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// How people write a value, which decides how it is brought into its prescribed form.
enum class value_form { text, code, date, amount };

// Writes a code or a date in its prescribed form. Returns whether that changed it; what
// cannot be read stays as it is.
bool write_as_prescribed(value_form form, std::string& value);

// What a value must satisfy beyond the library's own checks, so that the
// document is well-formed. Each rule returns the fault found, empty for none.
using value_rule = std::string (*)(std::string_view value);

// UTF-8 without control characters and code points that XML does not admit.
std::string text_fault(std::string_view value);

// The same without markup, for values that the library writes unescaped.
std::string unescaped_fault(std::string_view value);

// Dates as people write them, and purpose codes, of which the library checks the length only.
std::string date_fault(std::string_view value);
std::string purpose_fault(std::string_view value);

}  // namespace tivex_program
