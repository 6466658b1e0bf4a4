#pragma once

#include <cstdint>

namespace tivex {

// The decimal number at the start of a text: white space, an optional sign and
// digits; 0 where there are none. A number too large in magnitude gives the
// largest or smallest 64-bit number.
std::int64_t text_to_int64(const char* text);

}  // namespace tivex
