#pragma once

namespace CLI {
class App;
}

namespace tivex_edition {

// Adds `generate`, which writes the tables of the library.
void add_generate(CLI::App& program, int& exit_status);

}  // namespace tivex_edition
