#include "commands/asked_items.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "commands/table_options.h"
#include "files/grouped_code.h"
#include "files/table_form.h"
#include "files/value_rules.h"
#include "terminal/diagnostics.h"

namespace tivex_program {

bool asked_items::many() const {
  return input.has_value() || arguments.size() > 1 ||
         (!arguments.empty() && arguments.front() == "-");
}

table_wishes asked_items::table() const {
  return {table_separators.at(delimiter), table_encodings.at(encoding)};
}

void add_asking_options(CLI::App& command, asked_items& asked) {
  command.add_option("--input", asked.input, "File to read lines of; - for standard input")
      ->type_name("FILE");
  command.add_option("--column", asked.column, "The input is CSV: read this column of it")
      ->type_name("NAME");
  add_table_options(command, asked.delimiter, asked.encoding);
  command.add_flag("--json", asked.json, "Print an object of JSON a line");
}

void check_asked(const CLI::App& command, const asked_items& asked, const char* wanted) {
  if (asked.arguments.empty() && !asked.input) throw CLI::RequiredError(wanted);
  for (const char* const option : {"--delimiter", "--encoding"}) {
    if (command.count(option) > 0 && !asked.column) {
      throw CLI::ValidationError(option, "is for --column");
    }
  }
  const bool reads = asked.input || std::ranges::count(asked.arguments, "-") > 0;
  if (asked.column && !reads) throw CLI::ValidationError("--column", "needs --input or -");
}

item_reader::item_reader(const asked_items& asked)
    : asked_(asked),
      // Without a "-" for it the input comes last.
      input_wanted_(asked.input && std::ranges::count(asked.arguments, "-") == 0),
      faults_(asked.input.value_or("-"), fault_extent::first) {}

bool item_reader::next(std::string_view& text) {
  if (!next_written(text)) return false;
  if (is_joined(text)) return true;
  joined_ = text;
  join_groups(joined_);
  text = joined_;
  return true;
}

bool item_reader::next_written(std::string_view& text) {
  for (;;) {
    if (input_ && next_of_input(text)) return true;
    if (argument_ < asked_.arguments.size()) {
      text = asked_.arguments[argument_++];
      if (text != "-") return true;
    } else if (!input_wanted_) {
      return false;
    }
    // It is read once, however often it is named.
    input_wanted_ = false;
    if (!input_) open();
  }
}

void item_reader::open() {
  input_ = std::make_unique<input_file>(asked_.input.value_or("-"));
  if (asked_.column) {
    cells_ = std::make_unique<column_reader>(*input_, asked_.table(), *asked_.column);
    const std::string& fault = cells_->header_fault();
    if (!fault.empty())
      cells_->line() > 0 ? faults_.add(cells_->line(), fault) : faults_.add(fault);
  } else {
    lines_ = std::make_unique<line_reader>(*input_);
  }
}

bool item_reader::next_of_input(std::string_view& text) {
  if (lines_) {
    if (lines_->next(text)) return true;
    if (!lines_->error().empty()) {
      faults_.add(lines_->error());
    } else if (lines_->line() == 0) {
      faults_.add("no lines");
    }
  }
  while (cells_ && cells_->next()) {
    const std::string fault = cells_->fault();
    if (fault.empty()) {
      text = cells_->cell();
      return true;
    }
    faults_.add(cells_->line(), fault);
  }
  if (cells_ && !input_->error().empty()) faults_.add(input_->error());
  lines_.reset();
  cells_.reset();
  return false;
}

bool item_reader::tell_faults() const {
  faults_.print(asked_.json ? fault_form::json : fault_form::text);
  return faults_.empty();
}

void append_subject(std::string& line, std::string_view item) {
  // Most texts are printable as they are.
  if (text_fault(item).empty()) {
    line += item;
  } else {
    line += printable(item);
  }
  line += ": ";
}

const char* nul_fault(std::string_view item) {
  return item.find('\0') == std::string_view::npos ? nullptr : "control character U+0000";
}

}  // namespace tivex_program
