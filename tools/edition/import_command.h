#pragma once

namespace CLI {
class App;
}

namespace tivex_edition {

// Adds `import`, which turns publishers' files into tables of an edition.
void add_import(CLI::App& program, int& exit_status);

}  // namespace tivex_edition
