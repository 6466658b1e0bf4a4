#include <string>

#include "completions.h"

namespace tivex_reference {

namespace {

using texts = std::vector<std::string>;

// Completed words are put into the line as they are.
std::string offer(const texts& values) {
  std::string line = "_tivex_offer";
  for (const std::string& value : values) line += ' ' + quoted(shell_word(value));
  return line;
}

// A branch of a case that completes the value of a parameter.
std::string branch(const std::string& pattern, const parameter& completed) {
  const std::string action = !completed.values.empty() ? offer(completed.values)
                             : completed.takes_file()  ? "_tivex_offer_files"
                                                       : ":";
  return "    " + pattern + ") " + action + " ;;\n";
}

texts names_of(const std::vector<command>& commands) {
  texts names;
  for (const command& each : commands) names.push_back(each.name);
  return names;
}

std::string command_paths(const command& program) {
  std::string branches;
  for (const command* const each : all_commands(program)) {
    if (each == &program) continue;
    branches += (branches.empty() ? "" : " | \\\n        ") + quoted(each->path);
  }
  return branches;
}

std::string option_values(const command& program) {
  std::string branches;
  for (const command* const each : all_commands(program)) {
    for (const parameter& option : each->options) {
      if (option.value.empty()) continue;
      std::string pattern;
      for (const std::string& name : option.names()) {
        pattern += (pattern.empty() ? "" : " | ") + quoted(each->path + ' ' + name);
      }
      branches += branch(pattern, option);
    }
  }
  return branches;
}

std::string option_names(const command& program) {
  std::string branches;
  for (const command* const each : all_commands(program)) {
    texts names;
    for (const parameter& option : each->options) {
      for (const std::string& name : option.names()) names.push_back(name);
    }
    branches += "      " + quoted(each->path) + ") " + offer(names) + " ;;\n";
  }
  return branches;
}

std::string argument_values(const command& program) {
  std::string branches;
  for (const command* const each : all_commands(program)) {
    if (!each->commands.empty()) {
      branches += "    " + quoted(each->path) + ") " + offer(names_of(each->commands)) + " ;;\n";
    } else if (!each->arguments.empty()) {
      parameter argument = each->arguments.front();
      if (names_command(argument)) argument.values = names_of(program.commands);
      branches += branch(quoted(each->path), argument);
    }
  }
  return branches;
}

}  // namespace

std::string bash_completion(const command& program) {
  return std::string(generated_note) + R"(
# Adds those of the words that begin with what is typed.
_tivex_offer() {
  local each
  for each in "$@"; do
    [[ $each != "$typed"* ]] || COMPREPLY+=("$each")
  done
}

_tivex_offer_files() {
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -f -- "$typed")
}

_tivex() {
  local typed=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} path=tivex i
  COMPREPLY=()
  # The equals sign in --option=value is a word of its own.
  if [[ $typed == = ]]; then
    typed=
  elif [[ $before == = ]]; then
    before=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case "$path ${COMP_WORDS[i]}" in
      )" +
         command_paths(program) +
         R"()
        path+=" ${COMP_WORDS[i]}"
        ;;
    esac
  done
  case "$path $before" in
)" + option_values(program) +
         R"(    *)
      if [[ $typed == -* ]]; then
        _tivex_offer_options "$path"
      else
        _tivex_offer_arguments "$path"
      fi
      ;;
  esac
}

_tivex_offer_options() {
  case $1 in
)" + option_names(program) +
         R"(  esac
}

_tivex_offer_arguments() {
  case $1 in
)" + argument_values(program) +
         R"(  esac
}

complete -F _tivex tivex
)";
}

}  // namespace tivex_reference
