// Writes completions and manual pages from the programs' commands and the library's
// header.

#include <CLI/CLI.hpp>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "all_commands.h"
#include "command_tree.h"
#include "commands/all_commands.h"
#include "completions.h"
#include "library_page.h"
#include "manual_pages.h"

namespace {

namespace fs = std::filesystem;

void write(const fs::path& path, const std::string& content) {
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << content;
  file.close();
  if (!file) throw std::runtime_error(path.string() + ": cannot be written");
}

std::string content_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(path.string() + ": cannot be read");
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void write_reference(const fs::path& header, const fs::path& folder) {
  using namespace tivex_reference;
  int status = 0;
  CLI::App app(TIVEX_DESCRIPTION, "tivex");
  tivex_program::add_commands(app, status);
  const command program = read_commands(app);
  CLI::App edition_app(tivex_edition::program_description, tivex_edition::program_name);
  tivex_edition::add_commands(edition_app, status);

  std::vector<reference_file> pages = manual_pages(program);
  pages.push_back(manual_page(read_commands(edition_app)));
  pages.push_back(library_page(content_of(header)));
  for (const reference_file& page : pages) write(folder / "man" / page.name, page.content);
  write(folder / "completions/tivex.bash", bash_completion(program));
  write(folder / "completions/_tivex", zsh_completion(program));
  write(folder / "completions/tivex.fish", fish_completion(program));
}

}  // namespace

int main(int argument_count, char** arguments) {
  try {
    if (argument_count != 3) throw std::runtime_error("usage: tivex-reference HEADER FOLDER");
    write_reference(arguments[1], arguments[2]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
