// What stands between the elements and texts of an XML document, and inside of tags. Every
// step begins at a place of the text and returns the place where it goes on, or null for a
// fault. A NUL follows the text.
#pragma once

#include <cstddef>

#include "statements/camt/xml_scan.h"

namespace tivex {

enum class xml_fault { none, not_well_formed, doctype, too_deep, no_memory };

// The attribute of an element that is asked for, still as the document writes it.
struct xml_attribute {
  char* value = nullptr;
  char* value_end = nullptr;
};

class xml_markup {
 public:
  // Goes on in a text whose first lines have been read.
  xml_markup(const char* text_end, unsigned line, bool ascii_only)
      : end(text_end), line_(line), ascii_only_(ascii_only) {}

  xml_fault fault() const { return fault_; }
  // The line where reading stands: that of the fault.
  unsigned line() const { return line_; }

 protected:
  char* fail(xml_fault fault = xml_fault::not_well_formed) {
    fault_ = fault;
    return nullptr;
  }
  void count_line() { ++line_; }

  char* skip_space(char* at);
  // Steps over a character that is no plain one.
  char* pass_character(char* at);
  char* pass_name(char* at);

  // Behind "<!--" and "<?", up to what stands behind their ends.
  char* pass_comment(char* at);
  char* pass_instruction(char* at);
  // A comment or an instruction at its "<"; other markup is not well-formed.
  char* pass_other_markup(char* at);

  // Decodes in place what stands behind "<![CDATA[".
  char* read_cdata(char* at, char*& decoded_end);
  // Decodes a text in place, up to the next "<". It is plain up to `at`.
  char* read_text(char* from, char* at, char*& decoded_end);

  struct tag_rest {
    bool is_empty = false;
    xml_attribute kept;
  };
  // The rest of a start tag behind the name. Of the attributes that of the name asked for is
  // kept, whatever prefix it has.
  char* read_tag_rest(char* at, tag_rest& rest);

  // The value as it is meant, with white space at both ends removed and NUL behind it.
  static char* decode_attribute(const xml_attribute& attribute);

  const char* const end;

 private:
  char* check_value(char* at, char quote);
  char* pass_attribute(char* at, char*& name_end, xml_attribute& value);
  bool names_differ(char* at, std::size_t count, unsigned first_line);

  unsigned line_;
  bool ascii_only_;
  xml_fault fault_ = xml_fault::none;
};

// The attribute that is kept.
inline constexpr char kept_attribute[] = "Ccy";

}  // namespace tivex
