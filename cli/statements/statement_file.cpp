#include "statements/statement_file.h"

#include <cstddef>
#include <string_view>

#include "files/input_file.h"
#include "files/temporary_copy.h"
#include "files/wiped_bytes.h"
#include "platform/exhausted_memory.h"
#include "statements/statement_lines.h"
#include "terminal/library_text.h"

namespace tivex_program {
namespace {

std::string_view view(const wiped_bytes& bytes) { return {bytes.data(), bytes.size()}; }

wiped_bytes read_all(input_file& input) {
  constexpr std::size_t step = std::size_t{1} << 16;
  wiped_bytes bytes;
  for (std::size_t filled = 0;;) {
    bytes.resize(filled + step);
    const std::size_t count = input.read(bytes.data() + filled, step);
    filled += count;
    if (count > 0) continue;
    bytes.resize(filled);
    return bytes;
  }
}

// Returns the reason of a failure; the library gives none for a text that it takes for
// empty, and for want of memory.
std::string load(statement_file& file, const std::string& path, bool text_is_empty) {
  file.parser.reset(tivex_stmt_parser_new());
  if (!file.parser) end_for_want_of_memory();
  if (tivex_stmt_parser_load(file.parser.get(), TIVEX_FORMAT_MT940, path.c_str()) != 1) {
    std::string error = library_text(tivex_stmt_parser_getError(file.parser.get()));
    if (!error.empty()) return error;
    if (!text_is_empty) end_for_want_of_memory();
  }
  return tivex_stmt_parser_getStatement(file.parser.get()) == nullptr ? "no statements" : "";
}

std::string load_copy(statement_file& file, std::string_view text) {
  const temporary_copy copy(text);
  if (!copy.error().empty()) return "temporary copy: " + copy.error();
  return load(file, copy.path(), text.empty() || text.front() == '\0');
}

}  // namespace

statement_file read_statement_file(const std::string& name, bool strict) {
  statement_file file;
  input_file input(name);
  const wiped_bytes content = read_all(input);
  if (!input.error().empty()) {
    // The library says in its own words why a file cannot be read.
    file.error = name == "-" ? input.error() : load(file, name, true);
    return file;
  }
  const std::string_view text = view(content).substr(0, view(content).find('\0'));
  if (text.size() < content.size()) {
    file.note = "text ends at a NUL byte at offset " + std::to_string(text.size());
  }
  file.is_utf8 = is_utf8(text);

  wiped_bytes lines = strict ? wiped_bytes() : with_statement_lines(text);
  if (!strict && view(lines) != text) {
    file.error = load_copy(file, view(lines));
  } else if (name != "-" && input.size()) {
    file.error = load(file, name, text.empty());
  } else {
    // Standard input has no name, and a pipe cannot be read again.
    file.error = load_copy(file, view(content));
  }
  return file;
}

}  // namespace tivex_program
