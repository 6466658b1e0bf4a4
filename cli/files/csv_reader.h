#pragma once

#include <csv.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "files/input_file.h"

namespace tivex_program {

struct csv_row {
  std::size_t line = 0;  // on which the row starts, from 1
  std::vector<std::string> cells;
  std::string fault;  // why the row could not be read, empty when it could
};

// Reads a CSV file row by row and never holds more of it than one row and one
// buffer. Blank lines are counted and left out, as is a byte order mark.
class csv_reader {
 public:
  csv_reader(input_file& input, char delimiter);
  ~csv_reader();
  csv_reader(const csv_reader&) = delete;
  csv_reader& operator=(const csv_reader&) = delete;

  // Reads the next row, or returns false at the end of the file and when the
  // file could not be read. After a malformed row it goes on with the next line.
  bool next(csv_row& row);

 private:
  static void on_cell(void* text, std::size_t length, void* reader) noexcept;
  static void on_row(int terminator, void* reader) noexcept;

  void start_parser();
  bool refill();
  void skip_byte_order_mark();
  void find_line_feed();
  std::string_view next_piece();
  bool read_piece();
  bool read_plain_line(std::string_view line);
  void add_cell(std::string_view cell);
  bool finish();
  bool refuse(std::string fault);

  input_file& input_;
  char delimiter_;
  csv_parser parser_{};
  std::vector<char> buffer_;
  std::size_t position_ = 0;
  std::size_t filled_ = 0;
  std::size_t line_feed_ = 0;  // the next one, or `filled_` when the buffer has none

  csv_row* row_ = nullptr;      // that the call of next() fills
  std::size_t cells_ = 0;       // read of it; behind them stand those of an earlier row
  bool row_complete_ = false;   // the parser has passed the row's end
  bool row_open_ = false;       // the row goes on in the next piece
  bool skips_line_ = false;     // the rest of a malformed line is left out
  std::size_t line_ = 1;        // of the next byte
  std::size_t row_line_ = 1;    // on which the row started
  std::size_t row_length_ = 0;  // in bytes so far
};

}  // namespace tivex_program
