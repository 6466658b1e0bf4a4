#pragma once

namespace CLI {
class App;
}

namespace tivex_program {

// Adds "check" to the commands for IBANs; when it runs it sets the exit status.
void add_iban_check(CLI::App& ibans, int& exit_status);

}  // namespace tivex_program
