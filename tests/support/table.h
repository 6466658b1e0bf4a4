// Tables of test data: lines of tab-separated cells, # begins a comment. In a
// cell, (null) is no text, 71*x is 71 times what stands behind the star, and
// \t \n \r \v \f \xHH are bytes.
#pragma once

#include <optional>
#include <string>
#include <vector>

class cell {
 public:
  explicit cell(const std::string& written);
  const char* c_str() const { return text_ ? text_->c_str() : nullptr; }
  // Null counts as empty.
  std::string str() const { return text_.value_or(""); }

 private:
  std::optional<std::string> text_;
};

using row = std::vector<cell>;

// The rows of a file in tests/data, which must be there and hold rows of so many
// cells; cells missing at a line's end are empty.
std::vector<row> read_table(const std::string& name, std::size_t columns);

std::string read_data(const std::string& name);

std::vector<std::string> split(const std::string& text, const std::string& separator);
