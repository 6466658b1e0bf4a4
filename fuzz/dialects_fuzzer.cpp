// Any bytes as a statement file in a dialect.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "read_records.h"
#include "statements/dialects/dialects.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto* const parser = tivex_stmt_parser_new();
  if (parser == nullptr) std::abort();
  copied_file block(data, size);
  const int result = tivex::dialects_parse(*parser, block);
  if (result != (size > 0 && data[0] != 0 ? 1 : 0)) std::abort();
  const std::size_t sum = read_records(parser->first);
  // Nothing is there twice, and little beside what was: blanks and line feeds.
  if (sum > 3 * size + 100) std::abort();
  tivex_stmt_parser_free(parser);
  return 0;
}
