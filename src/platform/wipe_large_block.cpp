#include "platform/platform.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace tivex::platform {

void wipe_large_block(void* memory, std::size_t size) {
#ifdef __SSE2__
  constexpr std::size_t store = sizeof(__m128i);
  auto* const start = static_cast<char*>(memory);
  // The edges in one store each, whether aligned or not; the rest between them.
  _mm_storeu_si128(reinterpret_cast<__m128i*>(start), _mm_setzero_si128());
  _mm_storeu_si128(reinterpret_cast<__m128i*>(start + size - store), _mm_setzero_si128());
  char* at = start + store - reinterpret_cast<std::uintptr_t>(start) % store;
  for (; start + size - at >= static_cast<std::ptrdiff_t>(store); at += store) {
    _mm_stream_si128(reinterpret_cast<__m128i*>(at), _mm_setzero_si128());
  }
  _mm_sfence();
#else
  std::memset(memory, 0, size);
#endif
  touch(memory);
}

}  // namespace tivex::platform
