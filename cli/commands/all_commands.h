#pragma once

namespace CLI {
class App;
}

namespace tivex_program {

// Adds every command to the program. The command that runs sets the exit status.
void add_commands(CLI::App& program, int& exit_status);

}  // namespace tivex_program
