#pragma once

#include <cstddef>

namespace tivex {

#if defined(__GNUC__)
#define TIVEX_FORMATS(text, values) __attribute__((format(printf, text, values)))
#else
#define TIVEX_FORMATS(text, values)
#endif

// Formats as vsnprintf does into a buffer of `size` bytes; the result is cut to
// size - 1 bytes and always terminated. vsnprintf counts up to 2 GiB and gives nothing
// beyond: a text of a host's is shown with %.255s.
TIVEX_FORMATS(3, 4)
void bounded_format(char* out, std::size_t size, const char* format, ...);

}  // namespace tivex
