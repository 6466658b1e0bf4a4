#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "files/input_file.h"
#include "files/table_form.h"

namespace tivex_program {

// Reads a file as UTF-8 without a mark, whatever its encoding. A mark tells the encoding;
// without one the first character that is not ASCII does: when it is no UTF-8, the file is
// Windows-1252. A character that an encoding does not know becomes a control character or
// bytes that are no UTF-8, so that the rules for values refuse it.
class table_text {
 public:
  table_text(input_file& input, table_encoding wished) : input_(input), encoding_(wished) {}

  // Returns the number of bytes read, 0 at the end and after a failure. The buffer has
  // at least 16 bytes.
  std::size_t read(char* buffer, std::size_t size);

  // As far as has been read.
  table_encoding encoding() const { return encoding_; }
  bool has_mark() const { return has_mark_; }

 private:
  std::size_t start(char* buffer, std::size_t size);
  std::size_t decide(char* buffer, std::size_t count, std::size_t size);
  std::size_t take_converted(char* buffer, std::size_t size);
  void convert(std::string_view bytes);
  void convert_utf16(std::string_view bytes);

  input_file& input_;
  table_encoding encoding_;
  bool has_mark_ = false;
  bool started_ = false;
  bool high_byte_first_ = false;
  std::string kept_;       // bytes of a character whose end is still to come
  std::string converted_;  // and not yet handed out from `handed_out_` on
  std::size_t handed_out_ = 0;
  char32_t high_surrogate_ = 0;
  std::vector<char> raw_;
};

}  // namespace tivex_program
