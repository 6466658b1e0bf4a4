#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// Where nobody reads standard output any more, these end the program without a word.

// Puts the text into the buffer. False when standard output takes no more.
bool add_to_standard_output(std::string_view text);

// The same; throws the reason, for the error line, where that one says false.
void print_to_standard_output(std::string_view text);

// Writes out what is buffered. False, and an error line, when standard output
// did not take everything.
bool flush_standard_output();

// Writes the text past that buffer. Returns the reason of a failure, empty for none.
std::string write_standard_output(std::string_view text);

}  // namespace tivex_program
