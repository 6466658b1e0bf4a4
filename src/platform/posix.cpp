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

void expect_writing(void* memory, std::size_t size) {
#ifdef MADV_POPULATE_WRITE
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const std::uintptr_t within_page = reinterpret_cast<std::uintptr_t>(memory) % page;
  // A hint: older systems refuse it, and errno is the host's.
  const int error = errno;
  madvise(static_cast<char*>(memory) - within_page, size + within_page, MADV_POPULATE_WRITE);
  errno = error;
#else
  static_cast<void>(memory);
  static_cast<void>(size);
#endif
}

}  // namespace tivex::platform
