// A file that a publisher of bank directories offers.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "faults.h"

namespace tivex_edition {

// The content as UTF-8 without a byte order mark; what is not UTF-8 is taken for Latin-1.
std::string as_utf8(std::string_view content);

// Text of a file, and where to say what is wrong with it.
class published_file {
 public:
  published_file(std::string path, std::string_view content, fault_list& faults)
      : path_(std::move(path)), text_(as_utf8(content)), faults_(faults) {}

  const std::string& text() const { return text_; }
  void fault(const std::string& what) const { faults_.add(path_, what); }
  void fault(int line, const std::string& what) const { faults_.add(path_, line, what); }

 private:
  std::string path_;
  std::string text_;
  fault_list& faults_;
};

// What an import takes from a file.
template <typename row_type>
struct publication {
  std::string valid_from;  // empty where the file does not state it
  std::vector<row_type> rows;
  std::size_t skipped = 0;  // rows of kinds that an edition does not hold
};

struct published_line {
  int number = 0;
  std::string_view text;
};

// The lines without their ends; blank ones are counted and left out.
std::vector<published_line> lines_of(std::string_view text);

}  // namespace tivex_edition
