#pragma once

#include "statements/statement_parser.h"

namespace tivex {

// Parses the text of an MT940 file in place: it is cut, joined and pointed into.
// Returns 1 also for a text without statements; 0 when there is no text, no MT940
// state, or no memory for the records, of which none is left then.
int mt940_parse(statement_parser& parser, char* text);

}  // namespace tivex
