#pragma once

#include <string>
#include <vector>

namespace CLI {
class Option;
}

namespace tivex_reference {

// The values that an option takes when these are fixed: the members of the set that
// it checks, or those that its description lists as "Rulebook: DE-2.6, DE-2.7",
// "AT, CH or DE" or "CORE (default), COR1 or B2B".
std::vector<std::string> fixed_values(CLI::Option& option);

}  // namespace tivex_reference
