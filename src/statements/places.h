// Where a character stands, for a text in which it is frequent: a stretch of characters
// is looked at in one step, and no function is called for each place.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace tivex {

#ifdef __SSE2__

inline constexpr std::size_t stretch_length = 16;
inline constexpr int bits_of_place = 1;

// A bit for each place of the character in a stretch.
inline std::uint32_t places_in_stretch(const char* from, char character) {
  const __m128i characters = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
  const __m128i equal = _mm_cmpeq_epi8(characters, _mm_set1_epi8(character));
  return static_cast<std::uint32_t>(_mm_movemask_epi8(equal));
}

#else

inline constexpr std::size_t stretch_length = 8;
inline constexpr int bits_of_place = 8;

// The highest of eight bits for each place of the character in a stretch.
inline std::uint64_t places_in_stretch(const char* from, char character) {
  constexpr std::uint64_t ones = 0x0101010101010101;
  std::uint64_t characters = 0;
  std::memcpy(&characters, from, sizeof characters);
  if constexpr (std::endian::native == std::endian::big) {
    characters = __builtin_bswap64(characters);
  }
  // A byte comes to no more than its high bit unless one of the others is set.
  const std::uint64_t differences = characters ^ (ones * static_cast<unsigned char>(character));
  const std::uint64_t low_bits = ones * 0x7F;
  return ~(((differences & low_bits) + low_bits) | differences | low_bits);
}

#endif

// The first place of either character; the end when there is none.
inline char* find_either(char one, char other, char* from, const char* end) {
  for (; end - from >= static_cast<std::ptrdiff_t>(stretch_length); from += stretch_length) {
    const auto places = places_in_stretch(from, one) | places_in_stretch(from, other);
    if (places != 0) return from + std::countr_zero(places) / bits_of_place;
  }
  while (from < end && *from != one && *from != other) ++from;
  return from;
}

// Calls `visit` with each place of a character until it returns false. Returns whether
// it never did.
template <class visitor>
bool visit_places_of(char character, char* from, const char* end, visitor visit) {
  for (; end - from >= static_cast<std::ptrdiff_t>(stretch_length); from += stretch_length) {
    for (auto places = places_in_stretch(from, character); places != 0; places &= places - 1) {
      if (!visit(from + std::countr_zero(places) / bits_of_place)) return false;
    }
  }
  for (; from < end; ++from) {
    if (*from == character && !visit(from)) return false;
  }
  return true;
}

}  // namespace tivex
