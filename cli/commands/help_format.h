#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace tivex_program {

// How help texts look: nothing but a footer's own lines is wider than a terminal.
class help_format : public CLI::Formatter {
 public:
  help_format();

  std::string make_description(const CLI::App* command) const override;
  std::string make_option(const CLI::Option* option, bool is_positional) const override;
  std::string make_subcommand(const CLI::App* command) const override;

 private:
  std::string entry(const std::string& name, const std::string& text) const;
};

}  // namespace tivex_program
