#pragma once

#include <cstdint>

namespace tivex {

// What tag 86 holds.
enum class information_form : std::uint8_t { structured, words, plain };

// Tells by the beginning of a field, whose lines need not be joined. NUL ends the text.
information_form form_of_information(const char* field);

}  // namespace tivex
