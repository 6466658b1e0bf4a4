#pragma once

#include <filesystem>
#include <vector>

#include "faults.h"
#include "table_sources.h"

namespace tivex_edition {

// Reads the list of purposes from a folder, checks it and writes it as source; nothing
// when there are faults.
std::vector<source_file> generate_purpose_table(const std::filesystem::path& folder,
                                                fault_list& faults);

}  // namespace tivex_edition
