#include <errno.h>
#include <string.h>
#include <sys/mman.h>
#include <unistd.h>

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

void wipe(void* memory, std::size_t size) { explicit_bzero(memory, size); }

void prefer_large_pages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#ifdef MADV_HUGEPAGE
  // Twice the usual large page: a smaller block may hold none.
  constexpr std::size_t large_block = std::size_t{4} << 20;
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
