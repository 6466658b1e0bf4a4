#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tivex_program {

// What is wrong with a file as a whole, with a line, or with one key's cell in it.
struct file_fault {
  std::size_t line = 0;  // 0 for none
  std::string key;       // empty for none
  std::string text;
};

// How faults are told: "FILE:LINE: KEY: TEXT", or an object of JSON.
enum class fault_form { text, json };

// Writes one fault as a line to standard error.
void print_fault(fault_form form, const std::string& file, const file_fault& fault);

// How many faults of a file are told; the others are counted.
enum class fault_extent { first, all };

// The faults found in one file.
class fault_report {
 public:
  fault_report(std::string file, fault_extent extent) : file_(std::move(file)), extent_(extent) {}

  void add(const std::string& text) { record({0, "", text}); }
  void add(std::size_t line, const std::string& text) { record({line, "", text}); }
  void add(std::size_t line, const std::string& key, const std::string& text) {
    record({line, key, text});
  }

  bool empty() const { return count_ == 0; }
  // Further faults are counted only: their texts need not be found.
  bool full() const { return extent_ == fault_extent::first && faults_.size() == most_shown; }
  void print(fault_form form) const;

 private:
  static constexpr std::size_t most_shown = 20;

  void record(file_fault fault);

  std::string file_;
  fault_extent extent_;
  std::vector<file_fault> faults_;
  std::size_t count_ = 0;
};

}  // namespace tivex_program
