#pragma once

#include <ctime>

#include "platform/platform.h"

namespace tivex::platform {

// The C library counts years from 1900 and months from 0.
inline calendar_time from_broken_down(const std::tm& parts) {
  return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
          parts.tm_hour,        parts.tm_min,     parts.tm_sec};
}

}  // namespace tivex::platform
