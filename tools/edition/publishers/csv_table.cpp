#include "publishers/csv_table.h"

#include <csv.h>

#include <algorithm>
#include <new>
#include <string>
#include <string_view>

#include "publishers/field_texts.h"

namespace tivex_edition {

namespace {

// Feeds libcsv line by line, for it counts no lines.
class csv_rows {
 public:
  explicit csv_rows(const published_file& file) : file_(file) { start(); }
  ~csv_rows() { csv_free(&parser_); }
  csv_rows(const csv_rows&) = delete;
  csv_rows& operator=(const csv_rows&) = delete;

  // After a malformed row it goes on with the next line.
  void take(const published_line& line) {
    // A quoted field may go on in the next line.
    if (!row_open_) row_.line = line.number;
    row_open_ = true;
    const std::string text = std::string(line.text) + '\n';
    if (csv_parse(&parser_, text.data(), text.size(), on_field, on_row, this) == text.size()) {
      return;
    }
    if (csv_error(&parser_) != CSV_EPARSE) throw std::bad_alloc();
    file_.fault(row_.line, "malformed quoting");
    start();
  }

  std::vector<text_row> finish() {
    if (csv_fini(&parser_, on_field, on_row, this) != 0) {
      file_.fault(row_.line, "quoted field that is not closed");
    }
    return std::move(rows_);
  }

 private:
  static void on_field(void* text, std::size_t length, void* rows) noexcept {
    const std::string_view field(static_cast<const char*>(text), length);
    static_cast<csv_rows*>(rows)->row_.fields.emplace_back(trimmed(field));
  }

  static void on_row(int, void* rows) noexcept { static_cast<csv_rows*>(rows)->close_row(); }

  void close_row() {
    rows_.push_back(row_);
    row_.fields.clear();
    row_open_ = false;
  }

  void start() {
    csv_free(&parser_);
    csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI);
    csv_set_delim(&parser_, ';');
    row_.fields.clear();
    row_open_ = false;
  }

  const published_file& file_;
  csv_parser parser_{};
  text_row row_;
  bool row_open_ = false;
  std::vector<text_row> rows_;
};

// Where the wanted columns stand; empty, and faults, when some are missing.
std::vector<std::size_t> find_columns(const published_file& file, const text_row& header,
                                      std::span<const column_form> wanted) {
  std::vector<std::size_t> found;
  for (const column_form& column : wanted) {
    const auto name = std::find(header.fields.begin(), header.fields.end(), column.name);
    if (name == header.fields.end()) {
      file.fault(header.line, std::string("column '") + column.name + "' is missing");
    } else {
      found.push_back(static_cast<std::size_t>(name - header.fields.begin()));
    }
  }
  if (found.size() != wanted.size()) found.clear();
  return found;
}

}  // namespace

std::vector<text_row> read_csv_table(const published_file& file,
                                     std::span<const published_line> lines,
                                     std::span<const column_form> wanted) {
  csv_rows parsed(file);
  for (const published_line& line : lines) parsed.take(line);
  const std::vector<text_row> rows = parsed.finish();
  if (rows.empty()) {
    file.fault("the line with the columns' names is missing");
    return {};
  }
  const text_row& header = rows.front();
  const std::vector<std::size_t> columns = find_columns(file, header, wanted);
  if (columns.empty()) return {};
  std::vector<text_row> table;
  for (const text_row& row : std::span(rows).subspan(1)) {
    if (row.fields.size() != header.fields.size()) {
      file.fault(row.line, std::to_string(row.fields.size()) + " fields instead of " +
                               std::to_string(header.fields.size()));
      continue;
    }
    table.push_back({row.line, {}});
    for (const std::size_t column : columns) table.back().fields.push_back(row.fields[column]);
  }
  return table;
}

}  // namespace tivex_edition
