// What is told of a file besides its faults: warnings, and values that were written otherwise.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/fault_report.h"

namespace tivex_program {

struct warning {
  const char* name;
  std::string column;  // in the file; empty for none
  std::string key;     // or an option; empty for none
  std::string text;
};

// Warnings that say the same of many lines are told once, with the first of them.
struct warning_group {
  warning what;
  std::vector<std::size_t> lines;  // the first ones; none of a warning on no line
  std::size_t count;
};

struct value_change {
  std::size_t line;    // 0 for an option
  std::string column;  // in the file; empty for none
  std::string key;     // or an option
  std::string before;
  std::string after;
};

class payment_notes {
 public:
  explicit payment_notes(fault_extent extent) : extent_(extent) {}

  // On line 0 for none.
  void warn(warning what, std::size_t line);
  void change(value_change change);
  // By the first line of each warning.
  void sort();

  std::size_t warnings() const { return warnings_; }
  std::size_t changes() const { return changes_count_; }
  const std::vector<warning_group>& groups() const { return groups_; }

  void print(fault_form form, const std::string& file) const;

  // One line on what was left out for want of space, empty for nothing.
  std::string left_out() const;

 private:
  bool is_full(std::size_t shown) const;

  fault_extent extent_;
  std::vector<warning_group> groups_;
  std::map<std::string_view, std::size_t> further_;  // warnings by name that are not shown
  std::vector<value_change> changes_;
  std::size_t warnings_ = 0;
  std::size_t changes_count_ = 0;
};

}  // namespace tivex_program
