// Any bytes as a table, and each of its cells as an amount, a date, a code and a name. The first
// byte chooses what is told of the table.

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "files/column_names.h"
#include "files/csv_reader.h"
#include "files/date_text.h"
#include "files/grouped_code.h"
#include "files/text_encoding.h"
#include "payments/amount_column.h"

namespace {

using namespace tivex_program;

constexpr char separators[] = {'\0', ';', ',', '\t', '|'};
constexpr table_encoding encodings[] = {table_encoding::by_content, table_encoding::utf8,
                                        table_encoding::utf16, table_encoding::windows1252};
constexpr decimal_sign signs[] = {decimal_sign::unknown, decimal_sign::point, decimal_sign::comma};

void require(bool holds) {
  if (!holds) std::abort();
}

// What is read once is read as itself again.
void read_cell_twice(const std::string& cell, amount_column& amounts, std::size_t line) {
  std::string amount = cell;
  if (*amounts.read(amount, line).fault == '\0') {
    std::string again = amount;
    amount_column plain(decimal_sign::point);
    require(*plain.read(again, line).fault == '\0' && again == amount);
  }
  std::string date = cell;
  if (read_date(date) == date_flaw::none) {
    std::string again = date;
    require(date.size() == 10 && read_date(again) == date_flaw::none && again == date);
  }
  std::string code = cell;
  if (join_groups(code)) require(!join_groups(code));
  constexpr std::string_view keys[] = {"iban", "name", "amount"};
  key_of_column(cell, keys);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const int file = memfd_create("table", 0);
  const unsigned choice = size > 0 ? data[0] : 0;
  if (size > 0) ++data, --size;
  require(ftruncate(file, 0) == 0);
  require(pwrite(file, data, size, 0) == static_cast<ssize_t>(size));
  input_file input("/proc/self/fd/" + std::to_string(file));
  csv_reader reader(input, {separators[choice % 5], encodings[choice / 5 % 4]});
  amount_column amounts(signs[choice / 20 % 3]);
  csv_row row;
  std::size_t line = 0;
  while (reader.next(row)) {
    require(row.line > line && row.line <= size + 1);
    line = row.line;
    const bool windows = reader.text().encoding() == table_encoding::windows1252;
    for (const std::string& cell : row.cells) {
      require(!windows || is_utf8(cell));
      read_cell_twice(cell, amounts, row.line);
    }
  }
  require(input.error().empty() && input.bytes_read() == size);
  return 0;
}
