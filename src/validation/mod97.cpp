#include "validation/mod97.h"

#include <string_view>

namespace tivex {

int mod97_rearranged(const char* text, std::size_t start) {
  mod97_number number;
  for (const std::string_view piece : {std::string_view(text + start), std::string_view(text, 4)}) {
    for (const char c : piece) {
      if (!number.append(c)) return MOD97_BAD_CHARACTER;
    }
  }
  return number.remainder();
}

}  // namespace tivex
