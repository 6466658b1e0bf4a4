#include "commands/help_format.h"

#include "terminal/wrapped_text.h"

namespace tivex_program {

help_format::help_format() { column_width(28); }

std::string help_format::make_description(const CLI::App* command) const {
  return wrapped(command->get_description(), 0) + '\n';
}

std::string help_format::make_option(const CLI::Option* option, bool is_positional) const {
  return entry(make_option_name(option, is_positional) + make_option_opts(option),
               make_option_desc(option));
}

std::string help_format::make_subcommand(const CLI::App* command) const {
  return entry(command->get_name(), command->get_description());
}

std::string help_format::entry(const std::string& name, const std::string& text) const {
  const std::size_t width = get_column_width();
  std::string start = "  " + name;
  if (start.size() < width) {
    start.resize(width, ' ');
  } else {
    start.append(1, '\n').append(width, ' ');
  }
  return start + wrapped(text, width) + '\n';
}

}  // namespace tivex_program
