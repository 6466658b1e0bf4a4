#include "completions.h"

namespace tivex_reference {

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text) {
    if (c == '\'') {
      result += "'\\''";
    } else {
      result += c;
    }
  }
  return result + '\'';
}

std::string shell_word(const std::string& value) {
  return value.find_first_of(";&|<>()$`\\\"' *?[]#~") == std::string::npos ? value : '\\' + value;
}

bool names_command(const parameter& argument) { return argument.value == "COMMAND"; }

}  // namespace tivex_reference
