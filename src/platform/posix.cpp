#include <errno.h>
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

namespace {

// Tells the system what is meant to be done with whole pages of memory. A wish: where it
// is refused, the memory serves as well, and errno is the host's.
[[maybe_unused]] void advise(void* memory, std::size_t size, int advice) {
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  const std::size_t in_front = reinterpret_cast<std::uintptr_t>(memory) % page;
  const int error = errno;
  static_cast<void>(madvise(static_cast<char*>(memory) - in_front, size + in_front, advice));
  errno = error;
}

}  // namespace

void expect_writing([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#ifdef MADV_POPULATE_WRITE
  advise(memory, size, MADV_POPULATE_WRITE);
#endif
}

void prefer_large_pages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#ifdef MADV_HUGEPAGE
  if (size >= large_block) advise(memory, size, MADV_HUGEPAGE);
#endif
}

}  // namespace tivex::platform
