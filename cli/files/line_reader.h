#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "files/input_file.h"

namespace tivex_program {

// Reads a text file line by line and never holds more of it than one line and one
// buffer. Blank lines, the ends of lines and a byte order mark are left out.
class line_reader {
 public:
  explicit line_reader(input_file& input);

  // Reads the next line, which lives until the next call, with a NUL byte behind it.
  // False at the end and when there is an error.
  bool next(std::string_view& line);
  // Of the latest line, from 1.
  std::size_t line() const { return line_; }
  // Why the file could not be read to its end, empty when it could.
  const std::string& error() const { return error_; }

 private:
  bool refill();
  std::string_view take(std::size_t length);

  input_file& input_;
  std::vector<char> buffer_;
  std::size_t position_ = 0;
  std::size_t filled_ = 0;
  std::size_t line_ = 0;
  std::string error_;
};

}  // namespace tivex_program
