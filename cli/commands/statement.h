#pragma once

namespace CLI {
class App;
}

namespace tivex_program {

// Adds `statement`; when it runs it sets the exit status.
void add_statement(CLI::App& program, int& exit_status);

}  // namespace tivex_program
