#include "terminal/json_line.h"

#include <algorithm>
#include <cstdio>

#include "files/utf8.h"
#include "files/value_rules.h"
#include "terminal/diagnostics.h"

namespace tivex_program {
namespace {

bool is_markup(char c) { return c == '"' || c == '\\'; }

void append_escaped(std::string& line, std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = utf8_character_length(text);
    const std::string_view character = text.substr(0, length == 0 ? 1 : length);
    if (length == 0) {
      line.append("\\").append(printable(character));
    } else if (is_control_character(character)) {
      char escape[7];
      // Of one in two bytes the second is its number.
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned char>(character.back()));
      line += escape;
    } else {
      if (is_markup(character[0])) line += '\\';
      line += character;
    }
    text.remove_prefix(character.size());
  }
}

void append_string(std::string& line, std::string_view text) {
  line += '"';
  // Most texts need no escape.
  if (std::ranges::none_of(text, is_markup) && text_fault(text).empty()) {
    line += text;
  } else {
    append_escaped(line, text);
  }
  line += '"';
}

}  // namespace

void json_line::add_name(std::string_view name) {
  if (!first_) line_ += ',';
  first_ = false;
  line_ += '"';
  line_ += name;
  line_ += "\":";
}

void json_line::add_text(std::string_view name, std::string_view text) {
  add_name(name);
  append_string(line_, text);
}

void json_line::add_text_or_null(std::string_view name, std::string_view text) {
  if (text.empty()) {
    add_null(name);
  } else {
    add_text(name, text);
  }
}

void json_line::add_texts(std::string_view name, const std::vector<std::string>& texts) {
  add_name(name);
  line_ += '[';
  for (const std::string& text : texts) {
    if (&text != &texts.front()) line_ += ',';
    append_string(line_, text);
  }
  line_ += ']';
}

void json_line::add_number(std::string_view name, std::size_t number) {
  add_name(name);
  line_ += std::to_string(number);
}

void json_line::add_flag(std::string_view name, bool flag) {
  add_name(name);
  line_ += flag ? "true" : "false";
}

void json_line::add_null(std::string_view name) {
  add_name(name);
  line_ += "null";
}

}  // namespace tivex_program
