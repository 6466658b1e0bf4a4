#pragma once

#include <map>
#include <string>

namespace tivex_program {

// What may separate the cells of a CSV file, as the option --delimiter names it.
inline const std::map<std::string, char> delimiters = {{",", ','}, {";", ';'}, {"tab", '\t'}};

}  // namespace tivex_program
