#pragma once

#include <string>
#include <vector>

#include "edition.h"
#include "faults.h"
#include "hash_construction.h"
#include "records.h"

namespace tivex_edition {

// A generated file of the library's source.
struct source_file {
  std::string name;
  std::string content;
};

// Checks the edition and writes it as source; nothing when there are faults.
std::vector<source_file> generate_tables(const edition& facts, fault_list& faults);

}  // namespace tivex_edition
