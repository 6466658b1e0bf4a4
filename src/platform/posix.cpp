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

}  // namespace tivex::platform
