#pragma once

#include <cstddef>
#include <string_view>

namespace tivex_edition {

// The length of the UTF-8 character at the front of the text, which is not empty; 0
// when there is none (overlong, a surrogate, beyond U+10FFFF, cut short).
std::size_t utf8_length(std::string_view text);

}  // namespace tivex_edition
