#pragma once

#include <csv.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "files/input_file.h"
#include "files/table_form.h"
#include "files/table_text.h"

namespace tivex_program {

// A cell as the file has it, when it has been given another form since.
struct written_cell {
  std::size_t place;
  std::string text;
};

struct csv_row {
  std::size_t line = 0;  // on which the row starts, from 1
  std::vector<std::string> cells;
  std::string fault;  // why the row could not be read, empty when it could
  std::vector<written_cell> changed;
};

// Reads a table row by row, in UTF-8, and never holds more of it than one row and a few
// buffers. Blank lines are counted and left out, as are rows without any text.
class csv_reader {
 public:
  // What is not wished is found by looking.
  explicit csv_reader(input_file& input, const table_wishes& wishes = {});
  ~csv_reader();
  csv_reader(const csv_reader&) = delete;
  csv_reader& operator=(const csv_reader&) = delete;

  // Reads the next row, or returns false at the end of the file and when the
  // file could not be read. After a malformed row it goes on with the next line.
  bool next(csv_row& row);

  char separator() const { return separator_; }
  // As far as has been read.
  const table_text& text() const { return text_; }

 private:
  static void on_cell(void* text, std::size_t length, void* reader) noexcept;
  static void on_row(int terminator, void* reader) noexcept;

  void start_parser();
  bool refill();
  void look(char wished);
  bool read_row(csv_row& row);
  void find_line_feed();
  std::string_view next_piece();
  bool read_piece();
  bool read_plain_line(std::string_view line);
  void add_cell(std::string_view cell);
  bool finish();
  bool refuse(std::string fault);

  table_text text_;
  char separator_ = ',';
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
  bool after_return_ = false;   // the latest piece ended with a carriage return
  std::size_t line_ = 1;        // of the next byte
  std::size_t row_line_ = 1;    // on which the row started
  std::size_t row_length_ = 0;  // in bytes so far
};

}  // namespace tivex_program
