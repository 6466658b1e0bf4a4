#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/column_reader.h"
#include "files/input_file.h"
#include "files/line_reader.h"
#include "platform/exit_status.h"
#include "terminal/fault_report.h"
#include "terminal/standard_output.h"

namespace CLI {
class App;
}

namespace tivex_program {

// What a command is asked about: its arguments, and in place of "-" the lines of an
// input or the cells of one of its columns.
struct asked_items {
  std::vector<std::string> arguments;
  std::optional<std::string> input;  // standard input when not given
  std::optional<std::string> column;
  std::string delimiter = "auto";
  std::string encoding = "auto";
  bool json = false;

  // Whether more may be asked than one argument.
  bool many() const;
  // How the input is read when it is a table.
  table_wishes table() const;
};

// Adds --input, --column, --delimiter, --encoding and --json.
void add_asking_options(CLI::App& command, asked_items& asked);

// Throws the error of a command that is asked nothing, or by options that do not fit.
void check_asked(const CLI::App& command, const asked_items& asked, const char* wanted);

// Hands out item by item and holds no more than one and a buffer.
class item_reader {
 public:
  explicit item_reader(const asked_items& asked);

  // Hands out the next text without what stands between its groups; it lives until the next
  // call, with a NUL byte behind it.
  bool next(std::string_view& text);
  // Prints what could not be read. False when there is any.
  bool tell_faults() const;

 private:
  bool next_written(std::string_view& text);
  bool next_of_input(std::string_view& text);
  void open();

  const asked_items& asked_;
  std::size_t argument_ = 0;
  bool input_wanted_;
  std::unique_ptr<input_file> input_;
  std::unique_ptr<line_reader> lines_;
  std::unique_ptr<column_reader> cells_;
  std::string joined_;
  fault_report faults_;
};

// Prints a line for each item, which answer(item, line) writes; it tells whether the
// answer is a good one. Returns the exit status.
template <typename answer_function>
int answer_each(const asked_items& asked, answer_function answer) {
  item_reader items(asked);
  std::string line;
  bool good = true;
  bool written = true;
  for (std::string_view item; written && items.next(item);) {
    line.clear();
    good = answer(item, line) && good;
    line += '\n';
    written = add_to_standard_output(line);
  }
  written = flush_standard_output() && written;
  return items.tell_faults() && written && good ? exit_success : exit_failure;
}

// Appends the item as printable() has it, and a colon.
void append_subject(std::string& line, std::string_view item);

// Why the library would not see the whole item, null when it does.
const char* nul_fault(std::string_view item);

}  // namespace tivex_program
