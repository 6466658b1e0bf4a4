// Where a character stands, for a text in which it is frequent: eight characters are
// looked at together, and no function is called for each place.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tivex {

// Calls `visit` with each place of a character, and perhaps with a place directly behind
// one, until it returns false. Returns whether it never did.
template <class visitor>
bool visit_places_of(char character, char* from, const char* end, visitor visit) {
  using word = std::uint64_t;
  constexpr word ones = 0x0101010101010101;
  constexpr word high_bits = ones << 7;
  const word wanted = ones * static_cast<unsigned char>(character);
  while (end - from >= static_cast<std::ptrdiff_t>(sizeof(word))) {
    word characters = 0;
    std::memcpy(&characters, from, sizeof characters);
    if constexpr (std::endian::native == std::endian::big) {
      characters = __builtin_bswap64(characters);
    }
    // A byte that is zero borrows, which may also show in the bytes behind it.
    const word differences = characters ^ wanted;
    for (word found = (differences - ones) & ~differences & high_bits; found != 0;
         found &= found - 1) {
      if (!visit(from + std::countr_zero(found) / 8)) return false;
    }
    from += sizeof(word);
  }
  for (; from < end; ++from) {
    if (*from == character && !visit(from)) return false;
  }
  return true;
}

}  // namespace tivex
