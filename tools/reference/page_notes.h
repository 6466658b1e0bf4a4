// What a manual page tells that no option states.
#pragma once

#include <string>

#include "command_tree.h"

namespace tivex_reference {

// What the program is.
std::string about(const command& program);

// The sections that hold for a command, each with its title, or nothing.
std::string exit_statuses(const command& of);
std::string environment(const command& of);
std::string files(const command& of);

}  // namespace tivex_reference
