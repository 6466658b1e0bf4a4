#pragma once

#include "statements/statement_parser.h"

namespace tivex {

// Reads a file as it is and parses it. Returns 1, or 0 with the reason in the
// parser's error text.
int load_file(statement_parser& parser, const char* path);

}  // namespace tivex
