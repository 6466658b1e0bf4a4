#include "core/bounded_format.h"

#include <cstdarg>
#include <cstdio>

namespace tivex {

void bounded_format(char* out, std::size_t size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  if (std::vsnprintf(out, size, format, arguments) < 0 && size > 0) out[0] = '\0';
  va_end(arguments);
}

}  // namespace tivex
