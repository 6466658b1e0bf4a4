// Characters that SEPA does not know, written with those that it does, as the European
// Payments Council's conversion table has them.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tivex_program {

// What the table has for a character, which may be nothing at all; no text for a character
// that it does not have.
std::optional<std::string_view> table_text(std::string_view character);

// Whether a character, whole and in UTF-8, may stay.
using character_test = std::function<bool(std::string_view character)>;

// The text with what the table has for each character that may not stay; one that it does
// not have stays all the same. A vowel and the marks of an umlaut behind it are taken as the
// one letter that they make.
std::string transliterated(std::string_view text, const character_test& may_stay);

// The first character that may not stay, empty when all may.
std::string_view first_refused(std::string_view text, const character_test& may_stay);

// How a message shows a character: itself, and its code point.
std::string shown_character(std::string_view character);

std::size_t count_characters(std::string_view text);

}  // namespace tivex_program
