#pragma once

namespace CLI {
class App;
}

namespace tivex_edition {

inline constexpr const char* program_name = "tivex-edition";
inline constexpr const char* program_description =
    "Makes an edition of the directory that the library carries";

// Adds every command to the program. The command that runs sets the exit status.
void add_commands(CLI::App& program, int& exit_status);

}  // namespace tivex_edition
