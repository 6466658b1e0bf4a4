#include "text_table.h"

#include <string_view>

#include "whole_file.h"

namespace tivex_edition {

namespace {

constexpr std::string_view source_mark = "# source: ";
constexpr std::string_view valid_from_mark = "# valid from: ";
constexpr std::string_view rows_mark = "# rows: ";

std::vector<std::string> split(std::string_view line) {
  std::vector<std::string> fields;
  for (std::size_t tab = line.find('\t'); tab != std::string_view::npos; tab = line.find('\t')) {
    fields.emplace_back(line.substr(0, tab));
    line.remove_prefix(tab + 1);
  }
  fields.emplace_back(line);
  return fields;
}

std::string join(const std::vector<std::string>& fields) {
  std::string line;
  for (const std::string& field : fields) line += field + '\t';
  line.pop_back();
  return line;
}

std::vector<std::string> names_of(std::span<const column_form> columns) {
  std::vector<std::string> names;
  for (const column_form& column : columns) names.emplace_back(column.name);
  return names;
}

// Takes one line of the header into the table, the row count as written.
void take_header(std::string_view line, text_table& table, std::string& row_count) {
  if (line.starts_with(source_mark)) {
    table.source = line.substr(source_mark.size());
  } else if (line.starts_with(valid_from_mark)) {
    table.valid_from = line.substr(valid_from_mark.size());
  } else if (line.starts_with(rows_mark)) {
    row_count = line.substr(rows_mark.size());
  } else if (line.starts_with("# ") && table.title.empty()) {
    table.title = line.substr(2);
  }
}

}  // namespace

text_table read_text_table(const std::filesystem::path& path, std::span<const column_form> columns,
                           fault_list& faults) {
  text_table table;
  const std::string file = path.filename().string();
  const std::optional<std::string> content = read_whole_file(path, faults);
  if (!content) return table;
  std::string row_count;
  int line_number = 0;
  bool columns_named = false;
  std::size_t rows_seen = 0;
  for (std::string_view rest = *content; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(rest.size(), line.size() + 1));
    ++line_number;
    if (!columns_named && line.starts_with('#')) {
      take_header(line, table, row_count);
      continue;
    }
    text_row row = {line_number, split(line)};
    if (!columns_named) {
      columns_named = true;
      if (row.fields != names_of(columns)) {
        faults.add(file, line_number, "the columns are not " + join(names_of(columns)));
        return table;
      }
      continue;
    }
    ++rows_seen;
    if (row.fields.size() != columns.size()) {
      faults.add(file, line_number,
                 std::to_string(row.fields.size()) + " fields instead of " +
                     std::to_string(columns.size()));
      continue;
    }
    bool fits = true;
    for (std::size_t index = 0; index < columns.size(); ++index) {
      if (columns[index].fits(row.fields[index])) continue;
      fits = false;
      faults.add(file, line_number,
                 std::string(columns[index].name) + ": '" + row.fields[index] + "' is not " +
                     columns[index].wanted);
    }
    if (fits) table.rows.push_back(std::move(row));
  }
  if (!columns_named) faults.add(file, "the line with the columns' names is missing");
  if (row_count != std::to_string(rows_seen)) {
    faults.add(file, "the header states " + (row_count.empty() ? "no" : row_count) +
                         " rows, there are " + std::to_string(rows_seen));
  }
  return table;
}

void write_text_table(const std::filesystem::path& path, std::span<const column_form> columns,
                      const text_table& table, fault_list& faults) {
  std::string content = "# " + table.title + '\n';
  content.append(source_mark).append(table.source) += '\n';
  content.append(valid_from_mark).append(table.valid_from) += '\n';
  content.append(rows_mark).append(std::to_string(table.rows.size())) += '\n';
  content += join(names_of(columns)) + '\n';
  for (const text_row& row : table.rows) content += join(row.fields) + '\n';
  write_whole_file(path, content, faults);
}

}  // namespace tivex_edition
