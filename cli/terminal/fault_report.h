#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tivex_program {

// What is wrong with a file as a whole, with a line, or with one key's cell in it.
struct file_fault {
  std::size_t line = 0;     // 0 for none
  std::string key;          // empty for none
  std::string text;         // the same for all lines with this fault
  std::string column = {};  // what the file calls the key
  std::string value = {};
  std::string detail = {};  // of this line
  std::string advice = {};  // what to do
};

// How faults are told: "FILE:LINE: COLUMN 'VALUE': TEXT (DETAIL); ADVICE", or an object of JSON.
enum class fault_form { text, json };

// Writes one fault as a line to standard error, which stands for as many as are counted.
void print_fault(fault_form form, const std::string& file, const file_fault& fault,
                 std::size_t count = 1);

// How many faults of a file are told; the others are counted by their reasons.
enum class fault_extent { first, all };

// The faults found in one file.
class fault_report {
 public:
  fault_report(std::string file, fault_extent extent) : file_(std::move(file)), extent_(extent) {}

  void add(const std::string& text) { add(file_fault{0, "", text}); }
  void add(std::size_t line, const std::string& text) { add(file_fault{line, "", text}); }
  void add(file_fault fault);

  bool empty() const { return shown_.empty(); }
  void print(fault_form form) const;

 private:
  struct counted_fault {
    file_fault first;
    std::size_t count;
  };

  void count(file_fault fault);

  std::string file_;
  fault_extent extent_;
  std::vector<file_fault> shown_;
  // Those behind them, one of each column and reason.
  std::vector<counted_fault> counted_;
  std::size_t others_ = 0;  // that found no place there
};

}  // namespace tivex_program
