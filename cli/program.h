#pragma once

namespace tivex_program {

// Runs the program with arguments in UTF-8, the first of which is its own name. Returns
// the exit status. Called by the system's main function.
int run_program(int argument_count, char** arguments);

}  // namespace tivex_program
