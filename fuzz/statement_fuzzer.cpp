// Any bytes as a statement file.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "core/wiped_object.h"
#include "read_records.h"
#include "statements/mt940/mt940.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto* const parser = tivex_stmt_parser_new();
  auto* const text = static_cast<char*>(std::malloc(size + 1));
  if (parser == nullptr || text == nullptr) std::abort();
  if (size > 0) std::memcpy(text, data, size);
  text[size] = '\0';
  parser->format = TIVEX_FORMAT_MT940;
  parser->mt940 = tivex::make_wiped<tivex::mt940_state>().release();
  const int result = tivex::mt940_parse(*parser, text);
  if (result != (size > 0 && data[0] != 0 ? 1 : 0)) std::abort();
  const std::size_t sum = read_records(parser->first);
  parser->mt940->text = text;
  parser->mt940->size = size + 1;
  tivex_stmt_parser_free(parser);
  return sum == static_cast<std::size_t>(-1) ? 1 : 0;
}
