#pragma once

namespace CLI {
class App;
}

namespace tivex_program {

void add_rulebooks(CLI::App& program, int& exit_status);

}  // namespace tivex_program
