// The encodings of XML documents.
#pragma once

#include "statements/statement_parser.h"
#include "statements/text_block.h"

namespace tivex {

// Where a document begins behind byte order mark and XML declaration.
struct document_start {
  char* at = nullptr;  // null when there is no document; the parser knows the reason
  unsigned line = 1;
  bool ascii_only = false;
};

// Reads the XML declaration, and turns the text into UTF-8 where it is written otherwise.
document_start begin_document(statement_parser& parser, text_block& block);

}  // namespace tivex
