#include "statements/camt/camt.h"

#include "statements/camt/encodings.h"
#include "statements/camt/faults.h"
#include "statements/camt/listener.h"
#include "statements/camt/xml_reader.h"

namespace tivex {

namespace {

int read_document(statement_parser& parser, const text_block& block, const document_start& start) {
  camt_listener listener(parser);
  xml_reader<camt_listener> reader(block.text + block.length, start.line, start.ascii_only,
                                   listener);
  if (!reader.read(start.at)) return fail_for(parser, reader.fault(), reader.line());
  return listener.has_message() ? 1 : parser.fail("%s", "No camt document");
}

}  // namespace

int camt_parse(statement_parser& parser, text_block& block) {
  const document_start start = begin_document(parser, block);
  if (start.at != nullptr && read_document(parser, block, start) == 1) return 1;
  parser.drop_statements();
  return 0;
}

}  // namespace tivex
