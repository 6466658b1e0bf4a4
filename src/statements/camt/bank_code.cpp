#include "statements/camt/bank_code.h"

#include <cstring>

#include "statements/utf8.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

// The parts of a code between plus signs, one after the other.
class code_parts {
 public:
  explicit code_parts(char* code) : rest_(code) {}

  // An empty text when there is none.
  char* next() {
    char* const part = rest_;
    rest_ += std::strcspn(rest_, "+");
    if (*rest_ != '\0') *rest_++ = '\0';
    return part;
  }

 private:
  char* rest_;
};

// Of one to three digits, else 0.
int number_of(const char* text) {
  int number = 0;
  for (int digits = 0; *text != '\0'; ++digits, ++text) {
    if (digits == 3 || !is_digit(*text)) return 0;
    number = number * 10 + (*text - '0');
  }
  return number;
}

// A letter and three characters.
bool is_type(const char* text) {
  return (is_upper(*text) || is_lower(*text)) && count_utf8_characters(text) == 4;
}

}  // namespace

bank_transaction_code read_bank_code(char* code) {
  bank_transaction_code read;
  if (code == nullptr) return read;
  const bool has_parts = std::strchr(code, '+') != nullptr;
  code_parts parts(code);
  char* part = parts.next();
  if (is_type(part)) {
    copy_utf8_characters(read.type, part + 1);
    part = parts.next();
  } else if (!has_parts) {
    return read;
  }
  read.business_code = number_of(part);
  char* const primanota = parts.next();
  if (*primanota != '\0') read.primanota = primanota;
  read.text_key_extension = number_of(parts.next());
  return read;
}

}  // namespace tivex
