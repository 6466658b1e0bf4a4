// The four files of data/edition as rows of the edition, and back.
#pragma once

#include <filesystem>

#include "edition.h"
#include "faults.h"

namespace tivex_edition {

edition read_edition(const std::filesystem::path& folder, fault_list& faults);

// Writes the files, sorted.
void write_edition(const std::filesystem::path& folder, const edition& facts, fault_list& faults);

}  // namespace tivex_edition
