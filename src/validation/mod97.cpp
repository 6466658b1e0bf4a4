#include "validation/mod97.h"

#include <string_view>

#include "validation/ascii.h"

namespace tivex {

int mod97_rearranged(const char* text, std::size_t start) {
  int remainder = 0;
  for (const std::string_view piece : {std::string_view(text + start), std::string_view(text, 4)}) {
    for (const char c : piece) {
      const char upper = to_upper(c);
      if (is_digit(c)) {
        remainder = (remainder * 10 + (c - '0')) % 97;
      } else if (is_upper(upper)) {
        remainder = (remainder * 100 + (upper - 'A' + 10)) % 97;
      } else {
        return MOD97_BAD_CHARACTER;
      }
    }
  }
  return remainder;
}

}  // namespace tivex
