#include "statements/camt/xml_declaration.h"

#include <algorithm>
#include <cstring>

#include "statements/camt/xml_characters.h"
#include "statements/text_steps.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

class declaration_reader {
 public:
  explicit declaration_reader(char* at) : at_(at) {}

  char* at() const { return at_; }
  bool skip_space() {
    const char* const from = at_;
    while (is_xml_space(*at_)) ++at_;
    return at_ != from;
  }
  bool skip(std::string_view text) {
    if (std::strncmp(at_, text.data(), text.size()) != 0) return false;
    at_ += text.size();
    return true;
  }
  // A value in quotation marks behind "=". It may hold letters, digits, ".", "_" and "-".
  bool read_value(std::string_view& value) {
    skip_space();
    if (!skip("=")) return false;
    skip_space();
    const char quote = *at_;
    if (quote != '"' && quote != '\'') return false;
    const char* const from = ++at_;
    while (is_digit(*at_) || is_letter(*at_) || *at_ == '.' || *at_ == '_' || *at_ == '-') ++at_;
    value = {from, static_cast<std::size_t>(at_ - from)};
    if (*at_ != quote) return false;
    ++at_;
    return true;
  }

  static bool is_letter(char c) { return is_upper(c) || is_lower(c); }

 private:
  char* at_;
};

bool is_version(std::string_view value) {
  if (value.size() < 3 || !begins_with(value, "1.")) return false;
  return std::all_of(value.begin() + 2, value.end(), is_digit);
}

bool read_parts(declaration_reader& reader, std::string_view& encoding) {
  std::string_view value;
  if (!reader.skip_space() || !reader.skip("version")) return false;
  if (!reader.read_value(value) || !is_version(value)) return false;
  bool behind_space = reader.skip_space();
  if (behind_space && reader.skip("encoding")) {
    if (!reader.read_value(encoding)) return false;
    if (encoding.empty() || !declaration_reader::is_letter(encoding.front())) return false;
    behind_space = reader.skip_space();
  }
  if (behind_space && reader.skip("standalone")) {
    if (!reader.read_value(value) || (value != "yes" && value != "no")) return false;
    reader.skip_space();
  }
  return reader.skip("?>");
}

}  // namespace

xml_declaration read_declaration(char* text) {
  declaration_reader reader(text);
  if (!reader.skip("<?xml") || !is_xml_space(*reader.at())) return {{}, text, true};
  std::string_view encoding;
  const bool is_good = read_parts(reader, encoding);
  return {encoding, reader.at(), is_good};
}

}  // namespace tivex
