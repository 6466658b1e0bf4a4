// What a program tells of its commands, read from its CLI11 app.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tivex_reference {

// An option, or an argument that is known by its place.
struct parameter {
  std::string short_name;  // -o, or empty
  std::string long_name;   // --output; empty for an argument
  std::string value;       // what stands for its value, such as FILE; empty for a flag
  std::string description;
  std::string fallback;             // the value without the option, or empty
  std::vector<std::string> values;  // all that it takes; empty when these are not fixed
  std::vector<std::string> needs;
  std::vector<std::string> excludes;
  bool required = false;
  bool repeated = false;

  std::vector<std::string> names() const;
  bool takes_file() const;
};

struct command {
  std::string path;  // with the program's name and those of the commands above
  std::string name;
  std::string description;
  std::string footer;
  std::vector<parameter> options;
  std::vector<parameter> arguments;
  std::vector<command> commands;

  const parameter* find_option(const std::string& long_name) const;
};

command read_commands(CLI::App& program);

// The command, and all beneath it.
std::vector<const command*> all_commands(const command& top);

// Those of them that do something themselves.
std::vector<const command*> working_commands(const command& top);

}  // namespace tivex_reference
