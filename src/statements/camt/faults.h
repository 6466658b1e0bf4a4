// The texts that refuse a document.
#pragma once

#include "statements/camt/xml_markup.h"
#include "statements/statement_parser.h"

namespace tivex {

// Notes that a document is not well-formed here. Returns 0.
int fail_at(statement_parser& parser, const char* text, const char* at);

// Notes a fault of the reader; without memory there is no text. Returns 0.
int fail_for(statement_parser& parser, xml_fault fault, unsigned line);

}  // namespace tivex
