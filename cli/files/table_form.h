#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tivex_program {

// How the bytes of a table are read; by themselves when nothing is told.
enum class table_encoding { by_content, utf8, utf16, windows1252 };

// As the option --encoding names them.
inline const std::map<std::string, table_encoding> table_encodings = {
    {"auto", table_encoding::by_content},
    {"utf-8", table_encoding::utf8},
    {"utf-16", table_encoding::utf16},
    {"windows-1252", table_encoding::windows1252}};

// What may separate the cells, as the option --delimiter names it; '\0' is found by looking.
inline const std::map<std::string, char> table_separators = {
    {"auto", '\0'}, {";", ';'}, {",", ','}, {"tab", '\t'}, {"|", '|'}};

// What is told of a table before it is looked at.
struct table_wishes {
  char separator = '\0';
  table_encoding encoding = table_encoding::by_content;
};

// What is seen at the start of a table.
struct table_start {
  char separator = ',';
  std::size_t length = 0;  // of the line "sep=;" before the header, which is passed over
};

// Whether the text has all that tells the separator: a line with text, and that before it
// if it is "sep=;".
bool has_table_start(std::string_view head);

// The separator is that of a line "sep=;", or else the one that is most frequent in the
// header outside quotes, where one with a blank behind it counts half: it may belong to a text.
table_start look_at_start(std::string_view head);

// The names for a summary.
std::string_view name_of_separator(char separator);
std::string_view name_of_encoding(table_encoding encoding);

}  // namespace tivex_program
