// Any bytes as a CAMT document: it is read, or refused with a reason and no statements.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "read_records.h"
#include "statements/camt/camt.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto* const parser = tivex_stmt_parser_new();
  if (parser == nullptr) std::abort();
  copied_file block(data, size);
  const bool is_read = tivex::camt_parse(*parser, block) == 1;
  if (is_read != (*tivex_stmt_parser_getError(parser) == '\0')) std::abort();
  if (!is_read && parser->first != nullptr) std::abort();
  const std::size_t sum = read_records(parser->first);
  tivex_stmt_parser_free(parser);
  return sum == static_cast<std::size_t>(-1) ? 1 : 0;
}
