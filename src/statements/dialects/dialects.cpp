#include "statements/dialects/dialects.h"

#include <cstring>

#include "statements/dialects/dialect_reader.h"
#include "statements/text_steps.h"
#include "statements/utf8.h"

namespace tivex {

int dialects_parse(statement_parser& parser, text_block& block) {
  char* text = block.text;
  if (text == nullptr || *text == '\0') return 0;
  char* const end = text + std::strlen(text);
  if (starts_with(text, end, byte_order_mark)) text += byte_order_mark.size();
  dialect_reader reader(parser, text, end);
  if (reader.read()) return 1;
  parser.drop_statements();
  return 0;
}

}  // namespace tivex
