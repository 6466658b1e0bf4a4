#include "whole_file.h"

#include <fstream>
#include <iterator>

namespace tivex_edition {

std::optional<std::string> read_whole_file(const std::filesystem::path& path, fault_list& faults) {
  // Opening a folder succeeds, and reading it throws.
  std::ifstream file;
  if (!std::filesystem::is_directory(path)) file.open(path, std::ios::binary);
  if (!file.is_open()) {
    faults.add(path.string(), "cannot be read");
    return std::nullopt;
  }
  std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (file.bad()) {
    faults.add(path.string(), "cannot be read");
    return std::nullopt;
  }
  return content;
}

void write_whole_file(const std::filesystem::path& path, const std::string& content,
                      fault_list& faults) {
  fault_list none_yet;
  if (std::filesystem::exists(path) && read_whole_file(path, none_yet) == content) return;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << content;
  file.close();
  if (!file) faults.add(path.string(), "cannot be written");
}

}  // namespace tivex_edition
