// What an XML document can hold as text.
#pragma once

namespace tivex {

// The first byte of the first character that XML 1.0 does not admit, a control
// character for instance, or that is no UTF-8; null when there is none.
const char* find_illegal_character(const char* text);

// The first byte of what a reader would take as markup when the text stands
// unescaped; null when there is none.
const char* find_markup(const char* text);

}  // namespace tivex
