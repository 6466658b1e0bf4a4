#pragma once

namespace tivex {

// The forms of message fields.
enum format_kind : unsigned {
  FORMAT_BIC = 0,     // a BIC in upper case, 8 or 11 characters
  FORMAT_TEXT70 = 1,  // 1 to 70 bytes
  FORMAT_TEXT16 = 2,  // 1 to 16 bytes
  FORMAT_TEXT35 = 3,  // 1 to 35 bytes
};

// Whether a text has the form of a kind; null and unknown kinds have none. The
// characters of the text kinds are not looked at.
bool format_check(unsigned kind, const char* text);

}  // namespace tivex
