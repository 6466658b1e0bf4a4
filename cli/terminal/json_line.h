#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tivex_program {

// Writes an object of JSON, member by member, behind the text of a line. Bytes that are
// no UTF-8 become \xHH, as printable() has them; control characters are escaped.
class json_line {
 public:
  explicit json_line(std::string& line) : line_(line) { line_ += '{'; }
  json_line(const json_line&) = delete;
  json_line& operator=(const json_line&) = delete;

  void add_text(std::string_view name, std::string_view text);
  // Null for an empty text.
  void add_text_or_null(std::string_view name, std::string_view text);
  void add_texts(std::string_view name, const std::vector<std::string>& texts);
  void add_number(std::string_view name, std::size_t number);
  void add_flag(std::string_view name, bool flag);
  void add_null(std::string_view name);
  void end() { line_ += '}'; }

 private:
  void add_name(std::string_view name);

  std::string& line_;
  bool first_ = true;
};

}  // namespace tivex_program
