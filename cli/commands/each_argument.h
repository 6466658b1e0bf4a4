#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tivex_program {

// Hands over each argument, and for "-" each line of standard input that is not
// empty. False, and an error line, when standard input could not be read to its end.
[[nodiscard]] bool for_each_argument(const std::vector<std::string>& arguments,
                                     const std::function<void(const std::string&)>& take);

}  // namespace tivex_program
