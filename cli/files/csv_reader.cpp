#include "files/csv_reader.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "files/utf8.h"
#include "platform/exhausted_memory.h"

namespace tivex_program {
namespace {

constexpr std::size_t buffer_size = std::size_t{1} << 16;
// Far above any payment: a quote that is not closed must not swallow the file.
constexpr std::size_t longest_row = std::size_t{1} << 16;

bool has_quotes(std::string_view text) { return text.find('"') != std::string_view::npos; }

bool has_blanks_around(std::string_view cell) {
  const auto is_blank = [](char c) { return c == ' ' || c == '\t'; };
  return !cell.empty() && (is_blank(cell.front()) || is_blank(cell.back()));
}

bool is_without_text(const csv_row& row) {
  return row.fault.empty() &&
         std::ranges::all_of(row.cells, [](const std::string& cell) { return cell.empty(); });
}

}  // namespace

csv_reader::csv_reader(input_file& input, const table_wishes& wishes)
    : text_(input, wishes.encoding), buffer_(buffer_size) {
  look(wishes.separator);
  start_parser();
}

csv_reader::~csv_reader() { csv_free(&parser_); }

void csv_reader::start_parser() {
  csv_free(&parser_);
  csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI);
  csv_set_delim(&parser_, static_cast<unsigned char>(separator_));
}

bool csv_reader::refill() {
  position_ = 0;
  filled_ = text_.read(buffer_.data(), buffer_.size());
  find_line_feed();
  return filled_ > 0;
}

// Reads no further than to the end of the header: who feeds a pipe may wait for answers.
void csv_reader::look(char wished) {
  while (filled_ < buffer_.size() && !has_table_start({buffer_.data(), filled_})) {
    const std::size_t count = text_.read(buffer_.data() + filled_, buffer_.size() - filled_);
    if (count == 0) break;
    filled_ += count;
  }
  const table_start start = look_at_start({buffer_.data(), filled_});
  separator_ = wished == '\0' ? start.separator : wished;
  // The end of the line is left to be read, and counted.
  const std::string_view before(buffer_.data(), start.length);
  line_ += static_cast<std::size_t>(std::ranges::count(before, '\n'));
  position_ = start.length;
  find_line_feed();
}

void csv_reader::find_line_feed() {
  const std::string_view rest(buffer_.data(), filled_);
  line_feed_ = std::min(rest.find('\n', position_), filled_);
}

// Returns the bytes up to the next line end, with it, or else the rest of the buffer.
std::string_view csv_reader::next_piece() {
  // Without line feeds, each line would look through the whole buffer for the next one.
  if (line_feed_ < position_) find_line_feed();
  const std::string_view line(buffer_.data() + position_, line_feed_ - position_);
  const std::size_t length = std::min(line.find('\r'), line.size());
  return {line.data(), std::min(length + 1, filled_ - position_)};
}

void csv_reader::on_cell(void* text, std::size_t length, void* reader) noexcept {
  static_cast<csv_reader*>(reader)->add_cell({static_cast<const char*>(text), length});
}

// Texts of an earlier row keep their memory for this one's.
void csv_reader::add_cell(std::string_view cell) {
  if (cells_ < row_->cells.size()) {
    row_->cells[cells_] = cell;
  } else {
    row_->cells.emplace_back(cell);
  }
  ++cells_;
}

void csv_reader::on_row(int, void* reader) noexcept {
  static_cast<csv_reader*>(reader)->row_complete_ = true;
}

bool csv_reader::next(csv_row& row) {
  do {
    if (!read_row(row)) return false;
  } while (is_without_text(row));
  return true;
}

bool csv_reader::read_row(csv_row& row) {
  row.fault.clear();
  row_ = &row;
  cells_ = 0;
  row_complete_ = false;
  while (!row_complete_) {
    if (position_ == filled_ && !refill()) return finish();
    if (!read_piece()) break;
  }
  row.cells.resize(cells_);
  row.line = row_line_;
  return true;
}

// The parser counts no lines and cannot stop after a row, so it is fed pieces
// that end with a line end or the buffer: each completes one row at most.
// Returns false when the row is malformed.
bool csv_reader::read_piece() {
  const std::string_view piece = next_piece();
  const std::size_t length = piece.size();
  const bool ends_line = piece.back() == '\n' || piece.back() == '\r';

  // In some files a line ends with a carriage return alone.
  if (after_return_ && piece.front() != '\n') ++line_;
  after_return_ = piece.back() == '\r';

  if (!row_open_) {
    row_line_ = line_;
    row_length_ = 0;
  }
  position_ += length;
  if (piece.back() == '\n') ++line_;
  if (skips_line_) {
    skips_line_ = row_open_ = !ends_line;
    return true;
  }

  if (!row_open_ && ends_line && read_plain_line(piece.substr(0, length - 1))) return true;

  row_length_ += length;
  const std::size_t parsed = csv_parse(&parser_, piece.data(), length, on_cell, on_row, this);
  // At a line end a row stays open only within a quoted cell.
  row_open_ = parser_.quoted != 0 || !ends_line;
  const bool malformed = parsed != length;
  if (!malformed && (row_complete_ || row_length_ <= longest_row)) return true;

  if (malformed && csv_error(&parser_) != CSV_EPARSE) end_for_want_of_memory();
  start_parser();
  skips_line_ = row_open_ = !ends_line;
  return refuse(malformed ? "malformed quoting"
                          : "row longer than " + std::to_string(longest_row) +
                                " bytes (a quote that is not closed?)");
}

// Most lines need no parser. Returns false for one that may need it.
bool csv_reader::read_plain_line(std::string_view line) {
  if (line.empty()) return false;
  const bool may_quote = has_quotes(line);
  for (std::size_t at = 0; at <= line.size(); ++at) {
    const std::size_t quotes = may_quote && at < line.size() && line[at] == '"' ? 1 : 0;
    const std::size_t start = at + quotes;
    const std::size_t stop = std::min(line.find(quotes > 0 ? '"' : separator_, start), line.size());
    const std::string_view cell = line.substr(start, stop - start);
    at = stop + quotes;
    const bool ended = at == line.size() || (at < line.size() && line[at] == separator_);
    const bool bare = quotes == 0;
    if (!ended || (bare && (has_blanks_around(cell) || (may_quote && has_quotes(cell))))) {
      cells_ = 0;
      return false;
    }
    add_cell(cell);
  }
  row_complete_ = true;
  return true;
}

// A last line needs no line end.
bool csv_reader::finish() {
  if (csv_fini(&parser_, on_cell, on_row, this) != 0) {
    start_parser();
    refuse("quoted cell that is not closed");
    row_complete_ = true;
  }
  row_->cells.resize(cells_);
  row_->line = row_line_;
  return row_complete_;
}

bool csv_reader::refuse(std::string fault) {
  cells_ = 0;
  row_->fault = std::move(fault);
  return false;
}

}  // namespace tivex_program
