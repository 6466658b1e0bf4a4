#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tivex_program {

// Hands over each argument, and for "-" each line of standard input that is not
// empty.
void for_each_argument(const std::vector<std::string>& arguments,
                       const std::function<void(const std::string&)>& take);

}  // namespace tivex_program
