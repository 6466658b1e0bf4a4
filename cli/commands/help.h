#pragma once

#include <string>

namespace CLI {
class App;
}

namespace tivex_program {

// Adds `help`, which knows all commands of the program; when it runs it sets the exit status.
void add_help(CLI::App& program, int& exit_status);

// Returns " (did you mean 'NAME'?)" when a command within another has nearly this name, else
// an empty text.
std::string near_command(const CLI::App& within, const std::string& name);

}  // namespace tivex_program
