#pragma once

#include "statements/statement_parser.h"
#include "statements/text_block.h"

namespace tivex {

// Parses the text of MT940 and MT942 files as banks write them. Returns 1, or 0 with the reason
// in the parser's error text and no statements left.
int dialects_parse(statement_parser& parser, text_block& block);

}  // namespace tivex
