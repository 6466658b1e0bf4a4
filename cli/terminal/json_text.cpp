#include "terminal/json_text.h"

#include <string>

#include "files/text_encoding.h"
#include "terminal/diagnostics.h"

namespace tivex_program {

json_object json_text(std::string_view text) {
  return is_utf8(text) ? std::string(text) : printable(text);
}

json_object json_text_or_null(std::string_view text) {
  return text.empty() ? json_object() : json_text(text);
}

}  // namespace tivex_program
