#pragma once

#include <cstddef>

namespace tivex_program {

// Ends the program at once with the line "Out of memory" and exit status 1. It needs no
// memory itself. Whatever of the program asks for memory in vain comes here, also before
// main; what the library could not do for want of it has to be brought here.
[[noreturn]] void end_for_want_of_memory();

// Ends the program so when there is not this much memory left.
void require_memory(std::size_t bytes);

// Names the one file that must not stay behind then; null for none. The text has to
// live until the next call.
void remove_when_memory_ends(const char* name);

}  // namespace tivex_program
