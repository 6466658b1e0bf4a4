#include "core/creditor_identifier.h"

#include "validation/mod97.h"

namespace tivex {

const char* creditor_identifier_fault(const char* id) {
  constexpr int national_part = 7;
  const int remainder = mod97_rearranged(id, national_part);
  if (remainder == MOD97_BAD_CHARACTER) return "Invalid character in Creditor Identifier";
  return remainder == 1 ? nullptr : "Invalid Creditor Identifier checksum";
}

}  // namespace tivex
