#pragma once

#include <string>

namespace tivex_program {

// The library's reason for a refusal. When it tells that memory is exhausted, or is null
// for want of it, the program ends.
std::string library_text(const char* text);

}  // namespace tivex_program
