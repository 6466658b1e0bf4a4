// Steps over characters that mean nothing, many at a time.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace tivex {

// The first place of one of the marks, of a control character or of a byte beyond ASCII; the
// NUL behind the text's end at the latest.
template <char... marks>
inline char* find_special(char* at, [[maybe_unused]] const char* end) {
#ifdef __SSE2__
  constexpr std::ptrdiff_t stretch = 16;
  for (; end - at >= stretch; at += stretch) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    // Bytes beyond ASCII count as negative here.
    __m128i found = _mm_cmplt_epi8(bytes, _mm_set1_epi8(' '));
    ((found = _mm_or_si128(found, _mm_cmpeq_epi8(bytes, _mm_set1_epi8(marks)))), ...);
    const auto places = static_cast<std::uint32_t>(_mm_movemask_epi8(found));
    if (places != 0) return at + std::countr_zero(places);
  }
#endif
  // The end is a control character, too.
  const auto is_plain = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= ' ' && byte < 0x80 && ((c != marks) && ...);
  };
  while (is_plain(*at)) ++at;
  return at;
}

// The first place that holds no blank.
inline char* skip_blanks(char* at, [[maybe_unused]] const char* end) {
#ifdef __SSE2__
  constexpr std::ptrdiff_t stretch = 16;
  for (; end - at >= stretch; at += stretch) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    const __m128i blanks = _mm_cmpeq_epi8(bytes, _mm_set1_epi8(' '));
    const auto others = ~static_cast<std::uint32_t>(_mm_movemask_epi8(blanks)) & 0xFFFFU;
    if (others != 0) return at + std::countr_zero(others);
  }
#endif
  while (*at == ' ') ++at;
  return at;
}

// The first bytes of a name as one number; those behind its end count as 0. The first stands
// in the lowest bits on every processor.
inline constexpr std::size_t head_length = 8;

constexpr std::uint64_t name_head(const char* name, std::size_t length) {
  std::uint64_t head = 0;
  for (std::size_t place = 0; place < length && place < head_length; ++place) {
    head |= std::uint64_t{static_cast<unsigned char>(name[place])} << (8 * place);
  }
  return head;
}

// The same, where eight bytes can be read whatever the name's length.
inline std::uint64_t name_head_unbounded(const char* name, std::size_t length) {
  std::uint64_t head = 0;
  std::memcpy(&head, name, sizeof head);
  if constexpr (std::endian::native == std::endian::big) head = __builtin_bswap64(head);
  return length >= head_length ? head : head & ((std::uint64_t{1} << (8 * length)) - 1);
}

}  // namespace tivex
