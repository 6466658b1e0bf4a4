#pragma once

#include <cstdint>

#include "statements/statement_parser.h"
#include "statements/text_block.h"

namespace tivex {

// Parses the text of a file in place, or puts another one into the block and parses that.
// Returns 1, or 0 with the reason in the parser's error text and no statements left.
using text_parser = int (*)(statement_parser& parser, text_block& block);

// Null for a number that is no format.
text_parser find_format(std::int32_t number);

}  // namespace tivex
