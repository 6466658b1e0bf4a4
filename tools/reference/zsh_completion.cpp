#include <algorithm>

#include "completions.h"

namespace tivex_reference {

namespace {

// Brackets and colons end the parts of a specification.
std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) {
    if (c == '[' || c == ']' || c == ':' || c == '\\') result += '\\';
    result += c;
  }
  return result;
}

std::string value_of(const parameter& completed) {
  std::string text = ":";
  text += escaped(completed.value) + ':';
  if (completed.values.empty()) return text + (completed.takes_file() ? "_files" : "()");
  text += '(';
  for (const std::string& value : completed.values) {
    if (!text.ends_with('(')) text += ' ';
    text += shell_word(value);
  }
  return text + ')';
}

// A specification for each name of the option, which exclude one another.
std::string option_lines(const parameter& option) {
  std::string lines;
  for (const std::string& name : option.names()) {
    std::string specification;
    for (const std::string& other : option.names()) {
      specification += (specification.empty() ? "(" : " ") + other;
    }
    specification += ')' + name;
    const bool is_long = name.starts_with("--");
    if (is_long && !option.value.empty()) specification += '=';
    specification += '[' + escaped(option.description) + ']';
    if (!option.value.empty()) specification += value_of(option);
    lines += " \\\n    " + quoted(specification);
  }
  return lines;
}

std::string function_name(const command& named) {
  std::string name = '_' + named.path;
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
}

std::string described(const std::vector<command>& commands) {
  std::string lines;
  for (const command& each : commands) {
    lines += "    " + quoted(each.name + ':' + each.description) + '\n';
  }
  return lines;
}

std::string group_function(const command& group) {
  std::string text = function_name(group) + "() {\n  local state line\n  local -a commands=(\n" +
                     described(group.commands) + "  )\n  _arguments -C";
  for (const parameter& option : group.options) text += option_lines(option);
  text +=
      " \\\n    '1: :->command' \\\n    '*:: :->rest'\n  case $state in\n"
      "    command) _describe command commands ;;\n    rest)\n      case $line[1] in\n";
  for (const command& each : group.commands) {
    text += "        " + each.name + ") " + function_name(each) + " ;;\n";
  }
  return text + "      esac\n      ;;\n  esac\n}\n\n";
}

std::string command_function(const command& named, const command& program) {
  std::string text = function_name(named) + "() {\n";
  const bool completes_commands =
      std::any_of(named.arguments.begin(), named.arguments.end(), names_command);
  if (completes_commands) {
    text += "  local -a commands=(\n" + described(program.commands) + "  )\n";
  }
  text += "  _arguments";
  for (const parameter& option : named.options) text += option_lines(option);
  for (const parameter& argument : named.arguments) {
    const std::string value =
        names_command(argument) ? ":command:{_describe command commands}" : value_of(argument);
    text += " \\\n    " + quoted((argument.repeated ? "*" : argument.required ? "" : ":") + value);
  }
  return text + "\n}\n\n";
}

}  // namespace

std::string zsh_completion(const command& program) {
  // The first line is for zsh.
  std::string text = std::string("#compdef tivex\n") + generated_note + '\n';
  for (const command* const each : all_commands(program)) {
    text += each->commands.empty() ? command_function(*each, program) : group_function(*each);
  }
  return text + function_name(program) + " \"$@\"\n";
}

}  // namespace tivex_reference
