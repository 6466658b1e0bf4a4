#pragma once

#include <string>

#include "manual_pages.h"

namespace tivex_reference {

// The page of the library, from the text of its header: what holds for every function,
// and each group's functions with the first paragraph of what is said of them.
reference_file library_page(const std::string& header);

}  // namespace tivex_reference
