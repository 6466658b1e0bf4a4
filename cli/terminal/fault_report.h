#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tivex_program {

// The faults found in one file: the first ones in full, the others counted.
class fault_report {
 public:
  explicit fault_report(std::string file) : file_(std::move(file)) {}

  // A fault of the file as a whole, of a line, and of one key's cell in it.
  void add(const std::string& text);
  void add(std::size_t line, const std::string& text);
  void add(std::size_t line, const std::string& key, const std::string& text);

  bool empty() const { return count_ == 0; }
  // Further faults are counted only: their texts need not be found.
  bool full() const { return lines_.size() == most_shown; }
  void print() const;

 private:
  static constexpr std::size_t most_shown = 20;

  void record(std::string line);

  std::string file_;
  std::vector<std::string> lines_;
  std::size_t count_ = 0;
};

}  // namespace tivex_program
