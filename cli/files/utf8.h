#pragma once

#include <cstddef>
#include <string_view>

namespace tivex_program {

inline constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

// Returns the number of bytes of the character that the text starts with, 0 when
// those bytes are no UTF-8 (overlong forms, surrogates and values above U+10FFFF
// are none) or the text is empty.
std::size_t utf8_character_length(std::string_view text);

// Tells whether the character, whole and in UTF-8, is a control character
// (U+0000 to U+001F, U+007F to U+009F).
bool is_control_character(std::string_view character);

}  // namespace tivex_program
