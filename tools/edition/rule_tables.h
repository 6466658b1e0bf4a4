#pragma once

#include <filesystem>
#include <vector>

#include "faults.h"
#include "table_sources.h"

namespace tivex_edition {

// Reads the tables of the IBAN rules from a folder, checks them and writes them as
// source; nothing when there are faults.
std::vector<source_file> generate_rule_tables(const std::filesystem::path& folder,
                                              fault_list& faults);

}  // namespace tivex_edition
