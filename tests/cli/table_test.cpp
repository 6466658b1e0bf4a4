// What people write into tables: each row of written.tsv by the part of the program that reads it.
#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "files/column_names.h"
#include "files/csv_reader.h"
#include "files/date_text.h"
#include "files/grouped_code.h"
#include "payments/amount_column.h"
#include "program.h"
#include "support/table.h"

namespace {

using namespace tivex_program;
using texts = std::vector<std::string>;

std::string told(const amount_reading& reading) { return reading.value; }

texts read_as_amount(const std::string& text, const std::string&) {
  const written_amount amount = read_amount(text);
  std::string tells = amount.fault;
  if (amount.decides() != decimal_sign::unknown)
    tells = static_cast<char>(amount.decides());
  else if (tells.empty() && !amount.is_clear())
    tells = "?";
  return {told(amount.by_point), told(amount.by_comma), tells};
}

texts read_as_column(const std::string& text, const std::string& wish) {
  amount_column column(wish.empty() ? decimal_sign::unknown : static_cast<decimal_sign>(wish[0]));
  std::string all;
  std::size_t line = 1;
  for (std::string cell : split(text, ";")) {
    const read_cell read = column.read(cell, ++line);
    const std::string fault =
        read.detail.empty() ? read.fault : std::string(read.fault) + " (" + read.detail + ")";
    all += (all.empty() ? "" : ";") + (fault.empty() ? cell : fault);
  }
  return {all, wish, ""};
}

texts read_as_date(const std::string& text, const std::string&) {
  std::string date = text;
  const date_flaw flaw = read_date(date);
  return {flaw == date_flaw::none ? date : text_of(flaw), "", ""};
}

texts read_as_code(const std::string& text, const std::string&) {
  return {joined_groups(text), "", ""};
}

texts read_as_header(const std::string& text, const std::string&) {
  constexpr std::string_view keys[] = {"iban",       "name",      "amount",   "ref",    "bic",
                                       "date",       "cref",      "seq",      "mref",   "mdate",
                                       "addrStreet", "addrCode",  "addrTown", "addrCC", "addrLine1",
                                       "old_iban",   "bank_code", "account"};
  return {std::string(key_of_column(text, keys)), "", ""};
}

texts read_as_table(const std::string& text, const std::string&) {
  const scratch_directory directory;
  std::ofstream(directory / "table", std::ios::binary) << text;
  input_file input(directory / "table");
  csv_reader reader(input);
  csv_row row;
  EXPECT_TRUE(reader.next(row));
  std::string rows;
  while (reader.next(row)) {
    rows += (rows.empty() ? "" : "/") + std::to_string(row.line) + ":" + row.fault;
    for (std::size_t i = 0; i < row.cells.size(); ++i) rows += (i > 0 ? "|" : "") + row.cells[i];
  }
  std::string encoding(name_of_encoding(reader.text().encoding()));
  if (reader.text().has_mark()) encoding += " with mark";
  return {std::string(name_of_separator(reader.separator())), encoding, rows};
}

TEST(Tables, AreReadAsPeopleWriteThem) {
  const std::map<std::string, texts (*)(const std::string&, const std::string&)> readers = {
      {"amount", read_as_amount}, {"column", read_as_column}, {"date", read_as_date},
      {"code", read_as_code},     {"header", read_as_header}, {"table", read_as_table}};
  for (const row& r : read_table("cli/written.tsv", 5)) {
    EXPECT_EQ(readers.at(r[0].str())(r[1].str(), r[3].str()),
              (texts{r[2].str(), r[3].str(), r[4].str()}))
        << r[0].str() << ' ' << r[1].str();
  }
}

}  // namespace
