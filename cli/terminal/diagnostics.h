#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// Returns the text with control characters and bytes that are no UTF-8 written
// as \xHH: error texts repeat what stood in a file, down to single bytes.
std::string printable(std::string_view text);

// Returns the text as such a line.
std::string printable_line(std::string_view text);

// Writes one printable line to standard error. On a terminal what stands before the first
// ": ", mostly a place, is in a colour.
void print_error(std::string_view text);

// Writes such a line in which nothing has failed.
void print_note(std::string_view text);

// Writes printable lines as they are, and needs no memory for it.
void print_lines(std::string_view lines);

}  // namespace tivex_program
