#pragma once

#include <filesystem>
#include <string>

#include "faults.h"

namespace tivex_edition {

// Which tables of an edition are to be replaced, and by what; a table whose file
// is empty stays.
struct import_request {
  std::filesystem::path folder = "data/edition";
  std::string german;
  std::string german_valid_from;
  std::string german_later;
  std::string german_later_valid_from;
  std::string providers;
  std::string austrian;
  std::string austrian_valid_from;
  std::string swiss;
  bool shrink = false;  // a table may lose many rows
};

// Replaces tables of the edition in the folder and tells, in a line each, what was
// taken and what that changes. With a fault nothing is written.
std::string import_tables(const import_request& request, fault_list& faults);

}  // namespace tivex_edition
