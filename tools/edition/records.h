#pragma once

#include <string>
#include <vector>

#include "edition.h"
#include "faults.h"

namespace tivex_edition {

// A record as it stands in the library, without its padding.
struct directory_record {
  std::string key;
  std::string bytes;  // begins with the key, ends with NUL
  bool has_second_version = false;
};

// The records in ascending order of their keys. A record whose text is too long
// for the area into which lookups copy it is a fault.
std::vector<directory_record> lay_out_records(const edition& facts, fault_list& faults);

}  // namespace tivex_edition
