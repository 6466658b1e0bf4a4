#include "validation/mod97.h"

namespace tivex {

int mod97_rearranged(const char* text, std::size_t start) {
  mod97_number number;
  number.append(text + start);
  number.append({text, 4});
  return number.is_number() ? number.remainder() : MOD97_BAD_CHARACTER;
}

}  // namespace tivex
