// The formats of statement files by their numbers.
#include "statements/formats.h"

#include <cstring>
#include <string_view>

#include "statements/camt/camt.h"
#include "statements/dialects/dialects.h"
#include "statements/mt940/mt940.h"
#include "statements/text_steps.h"
#include "statements/utf8.h"

namespace tivex {

namespace {

int parse_prescribed_mt940(statement_parser& parser, text_block& block) {
  return mt940_parse(parser, block.text);
}

// XML begins with "<", behind a mark of the encoding and white space.
bool looks_like_xml(const text_block& block) {
  // Of characters of two bytes, which are no text of MT940 either.
  constexpr std::string_view wide_beginnings[] = {"\xFF\xFE<", {"\xFE\xFF\0<", 4}};
  const std::string_view text(block.text, block.length);
  for (const std::string_view beginning : wide_beginnings) {
    if (begins_with(text, beginning)) return true;
  }
  const char* const behind_mark =
      block.text + (begins_with(text, byte_order_mark) ? byte_order_mark.size() : 0);
  return behind_mark[std::strspn(behind_mark, " \t\r\n")] == '<';
}

int detect_and_parse(statement_parser& parser, text_block& block) {
  return looks_like_xml(block) ? camt_parse(parser, block) : dialects_parse(parser, block);
}

struct format_row {
  std::int32_t number;
  text_parser parse;
};

constexpr format_row formats[] = {{TIVEX_FORMAT_MT940, parse_prescribed_mt940},
                                  {TIVEX_FORMAT_DETECT, detect_and_parse},
                                  {TIVEX_FORMAT_CAMT, camt_parse},
                                  {TIVEX_FORMAT_MT940_DIALECTS, dialects_parse}};

}  // namespace

text_parser find_format(std::int32_t number) {
  for (const format_row& row : formats) {
    if (row.number == number) return row.parse;
  }
  return nullptr;
}

}  // namespace tivex
