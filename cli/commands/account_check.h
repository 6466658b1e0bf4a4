#pragma once

namespace CLI {
class App;
}

namespace tivex_program {

// Adds "account check" to the program; when it runs it sets the exit status.
void add_account_check(CLI::App& program, int& exit_status);

}  // namespace tivex_program
