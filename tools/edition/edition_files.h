// The four files of data/edition as rows of the edition, and back.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "edition.h"
#include "faults.h"

namespace tivex_edition {

// A row as its file states it; the first field is the row's key.
using row_fields = std::vector<std::string>;

edition read_edition(const std::filesystem::path& folder, fault_list& faults);

// The rows in the order in which their file holds them.
std::vector<row_fields> sorted_fields(const std::vector<german_row>& rows);
std::vector<row_fields> sorted_fields(const std::vector<bank_row>& rows);
std::vector<row_fields> sorted_fields(const std::vector<bic_row>& rows);

// Writes the files, sorted.
void write_edition(const std::filesystem::path& folder, const edition& facts, fault_list& faults);

}  // namespace tivex_edition
