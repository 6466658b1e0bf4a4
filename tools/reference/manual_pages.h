#pragma once

#include <string>
#include <vector>

#include "command_tree.h"

namespace tivex_reference {

struct reference_file {
  std::string name;
  std::string content;
};

// The program's page with an overview, and a page for each of its commands.
std::vector<reference_file> manual_pages(const command& program);

// One page that tells of all commands.
reference_file manual_page(const command& program);

}  // namespace tivex_reference
