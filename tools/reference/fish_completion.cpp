#include "completions.h"

namespace tivex_reference {

namespace {

std::string list(const std::vector<std::string>& values) {
  std::string text;
  for (const std::string& value : values) text += (text.empty() ? "" : " ") + shell_word(value);
  return text;
}

// A line that completes something where the words before name the command.
std::string rule(const command& where, const std::string& what) {
  return "complete -c tivex -n '__tivex_at \"" + where.path + "\"' " + what + '\n';
}

std::string value_of(const parameter& completed) {
  if (!completed.values.empty()) return " -x -a " + quoted(list(completed.values));
  return completed.takes_file() ? " -r -F" : " -x";
}

std::string option_rule(const command& where, const parameter& option) {
  std::string names;
  if (!option.short_name.empty()) names += "-s " + option.short_name.substr(1) + ' ';
  if (!option.long_name.empty()) names += "-l " + option.long_name.substr(2);
  return rule(where, names + (option.value.empty() ? "" : value_of(option)) + " -d " +
                         quoted(option.description));
}

}  // namespace

std::string fish_completion(const command& program) {
  std::string text = std::string(generated_note) + R"(
# Whether the words before the cursor name this command and none beneath it.
function __tivex_at
    set -l path tivex
    set -l words (commandline -opc)
    set -e words[1]
    for word in $words
        switch "$path $word"
            case)";
  for (const command* const each : all_commands(program)) {
    if (each == &program) continue;
    text += ' ' + quoted(each->path);
  }
  text += R"(
                set path "$path $word"
        end
    end
    test "$path" = "$argv[1]"
end

complete -c tivex -f
)";
  for (const command* const each : all_commands(program)) {
    for (const command& beneath : each->commands) {
      text += rule(*each, "-a " + beneath.name + " -d " + quoted(beneath.description));
    }
    for (const parameter& option : each->options) text += option_rule(*each, option);
    if (each->arguments.empty()) continue;
    const parameter& argument = each->arguments.front();
    if (names_command(argument)) {
      for (const command& named : program.commands) {
        text += rule(*each, "-a " + named.name + " -d " + quoted(named.description));
      }
    } else if (!argument.values.empty()) {
      text += rule(*each, "-a " + quoted(list(argument.values)));
    } else if (argument.takes_file()) {
      text += rule(*each, "-F");
    }
  }
  return text;
}

}  // namespace tivex_reference
