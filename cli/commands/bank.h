#pragma once

namespace CLI {
class App;
}

namespace tivex_program {

// Adds `bank`.
void add_bank(CLI::App& program, int& exit_status);

}  // namespace tivex_program
