#pragma once

#include "statements/statement_parser.h"
#include "statements/text_block.h"

namespace tivex {

// Parses the text of camt.052, camt.053 and camt.054 documents. Returns 1, or 0 with the reason
// in the parser's error text and no statements left.
int camt_parse(statement_parser& parser, text_block& block);

}  // namespace tivex
