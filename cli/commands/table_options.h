#pragma once

#include <string>

namespace CLI {
class App;
}

namespace tivex_program {

// Adds --delimiter and --encoding.
void add_table_options(CLI::App& command, std::string& delimiter, std::string& encoding);

}  // namespace tivex_program
