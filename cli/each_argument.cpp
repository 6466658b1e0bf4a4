#include "each_argument.h"

#include <iostream>

namespace tivex_program {

void for_each_argument(const std::vector<std::string>& arguments,
                       const std::function<void(const std::string&)>& take) {
  for (const std::string& argument : arguments) {
    if (argument != "-") {
      take(argument);
      continue;
    }
    for (std::string line; std::getline(std::cin, line);) {
      if (line.ends_with('\r')) line.pop_back();
      if (!line.empty()) take(line);
    }
  }
}

}  // namespace tivex_program
