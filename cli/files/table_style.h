#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tivex_program {

// How a table is written: as CSV for programs, or for people who open it in Excel.
struct table_style {
  char delimiter = ',';
  char decimal_sign = '.';
  bool for_excel = false;
};

// As the option --excel names the language of the one who opens it.
inline const std::map<std::string, table_style> excel_styles = {{"de", {';', ',', true}},
                                                                {"en", {',', '.', true}}};

// What a cell holds. Of other people's cells nothing is known.
enum class cell_kind { text, number, unknown };

// What stands in front of the first row.
std::string_view table_opening(const table_style& style);

// The cell as it stands in a row. In a table for Excel a text is never a formula, and
// never taken for a number or a date.
std::string table_cell(const std::string& cell, cell_kind kind, const table_style& style);

}  // namespace tivex_program
