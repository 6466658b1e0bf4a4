#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tivex_program {

// Whether standard error is a terminal.
bool errors_go_to_terminal();

// Whether standard output (1) or standard error (2) is a terminal that takes the sequences
// for colours.
bool takes_colours(int stream);

// The folder of temporary files, with a separator at its end: $TMPDIR or /tmp, and on
// Windows that of the user.
std::string temporary_folder();

// These two need no memory.
void remove_file(const char* name);
[[noreturn]] void end_at_once(std::string_view last_words, int exit_status);

// Ends the program without a word, as the system does, when the write that has failed
// just now failed because nobody reads the output any more.
void end_when_reader_has_gone();

// Overwrites memory, which the compiler may not leave out.
void wipe(void* memory, std::size_t size);

}  // namespace tivex_program
