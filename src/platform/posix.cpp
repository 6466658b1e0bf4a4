#include <errno.h>
#include <string.h>
#include <sys/mman.h>
#include <unistd.h>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "platform/broken_down.h"
#include "platform/platform.h"

namespace tivex::platform {

std::time_t now() { return std::time(nullptr); }

// A host may change TZ while it runs: localtime looks at it, localtime_r need not.
calendar_time local_calendar(std::time_t moment) {
  tzset();
  std::tm parts{};
  return localtime_r(&moment, &parts) ? from_broken_down(parts) : calendar_time{};
}

calendar_time utc_calendar(std::time_t moment) {
  std::tm parts{};
  return gmtime_r(&moment, &parts) ? from_broken_down(parts) : calendar_time{};
}

std::uint32_t process_id() { return static_cast<std::uint32_t>(getpid()); }

namespace {

// Twice the usual large page: a smaller block may hold none. It is also more than the
// caches near a processor hold.
constexpr std::size_t large_block = std::size_t{4} << 20;

#ifdef __SSE2__
// Zeros that go past the caches: a block that is too large for them and about to be
// released is overwritten in half the time.
void wipe_past_caches(char* at, char* end) {
  constexpr std::size_t store = sizeof(__m128i);
  const std::size_t unaligned = reinterpret_cast<std::uintptr_t>(at) % store;
  if (unaligned != 0) {
    explicit_bzero(at, store - unaligned);
    at += store - unaligned;
  }
  for (; end - at >= static_cast<std::ptrdiff_t>(store); at += store) {
    _mm_stream_si128(reinterpret_cast<__m128i*>(at), _mm_setzero_si128());
  }
  _mm_sfence();
  // The compiler must believe that the zeros are read.
  asm volatile("" : : "r"(at) : "memory");
  explicit_bzero(at, static_cast<std::size_t>(end - at));
}
#endif

}  // namespace

void wipe(void* memory, std::size_t size) {
#ifdef __SSE2__
  auto* const start = static_cast<char*>(memory);
  if (size >= large_block) return wipe_past_caches(start, start + size);
#endif
  explicit_bzero(memory, size);
}

void prefer_large_pages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#ifdef MADV_HUGEPAGE
  if (size < large_block) return;
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  const std::size_t in_front = reinterpret_cast<std::uintptr_t>(memory) % page;
  const int error = errno;
  // A wish: where it is refused, the memory serves as well.
  static_cast<void>(madvise(static_cast<char*>(memory) - in_front, size + in_front, MADV_HUGEPAGE));
  errno = error;
#endif
}

}  // namespace tivex::platform
