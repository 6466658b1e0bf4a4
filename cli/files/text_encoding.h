#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tivex_program {

// How the bytes of a text are read; by themselves as UTF-8 or else as Latin-1.
enum class text_encoding { by_content, utf8, latin1, windows1252 };

// As the option --encoding names them.
inline const std::map<std::string, text_encoding> text_encodings = {
    {"auto", text_encoding::by_content},
    {"latin1", text_encoding::latin1},
    {"utf-8", text_encoding::utf8},
    {"windows-1252", text_encoding::windows1252}};

bool is_utf8(std::string_view text);

// What a byte of windows-1252 stands for; U+FFFD where it knows none.
char32_t windows1252_character(unsigned char byte);

// Appends the character in UTF-8; half of a surrogate pair becomes bytes that are none.
void append_utf8(std::string& text, char32_t character);

// Returns the text in UTF-8, with U+FFFD for what the encoding does not know.
std::string to_utf8(std::string_view text, text_encoding encoding);

}  // namespace tivex_program
