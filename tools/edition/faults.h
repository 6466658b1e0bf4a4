#pragma once

#include <string>
#include <vector>

namespace tivex_edition {

// What is wrong with the input, each fault with its file and line; rows that were
// made in memory have line 0, which is not told.
class fault_list {
 public:
  void add(const std::string& file, int line, const std::string& what) {
    add(line == 0 ? file : file + ':' + std::to_string(line), what);
  }
  // A fault of the whole file.
  void add(const std::string& file, const std::string& what) {
    faults_.push_back(file + ": " + what);
  }

  bool empty() const { return faults_.empty(); }
  const std::vector<std::string>& all() const { return faults_; }

 private:
  std::vector<std::string> faults_;
};

}  // namespace tivex_edition
