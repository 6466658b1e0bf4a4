#pragma once

namespace CLI {
class App;
}

namespace tivex_program {

// Adds "convert" and "bic" to the commands for IBANs; when one runs it sets the exit
// status.
void add_iban_convert(CLI::App& ibans, int& exit_status);
void add_iban_bic(CLI::App& ibans, int& exit_status);

}  // namespace tivex_program
