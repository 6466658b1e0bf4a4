#pragma once

#include <cstddef>

namespace tivex {

inline constexpr int MOD97_BAD_CHARACTER = -1;

// The remainder modulo 97 (ISO 7064 MOD 97-10) of the number that a text
// spells when its first four characters stand behind those from `start` on and
// each letter counts as two digits, A and a as 10 up to Z and z as 35. Returns
// 0 to 96, or MOD97_BAD_CHARACTER when one of these characters is neither digit
// nor letter. The text has at least four characters and `start` lies within it.
int mod97_rearranged(const char* text, std::size_t start);

}  // namespace tivex
