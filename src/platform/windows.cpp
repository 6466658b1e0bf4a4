#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "platform/broken_down.h"
#include "platform/platform.h"

namespace tivex::platform {

static_assert(sizeof(std::time_t) == 8, "32 bits of seconds end in 2038");

std::time_t now() { return std::time(nullptr); }

calendar_time local_calendar(std::time_t moment) {
  std::tm parts{};
  return localtime_s(&parts, &moment) == 0 ? from_broken_down(parts) : calendar_time{};
}

calendar_time utc_calendar(std::time_t moment) {
  std::tm parts{};
  return gmtime_s(&parts, &moment) == 0 ? from_broken_down(parts) : calendar_time{};
}

std::uint32_t process_id() { return GetCurrentProcessId(); }

void expect_writing(void* /*memory*/, std::size_t /*size*/) {}

// Large pages need a privilege here.
void prefer_large_pages(void* /*memory*/, std::size_t /*size*/) {}

}  // namespace tivex::platform
