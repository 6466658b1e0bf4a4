#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "faults.h"

namespace tivex_edition {

// Nothing, and a fault, when the file cannot be read.
std::optional<std::string> read_whole_file(const std::filesystem::path& path, fault_list& faults);

// A file that has the content already is left as it is.
void write_whole_file(const std::filesystem::path& path, const std::string& content,
                      fault_list& faults);

}  // namespace tivex_edition
