#include "statements/camt/faults.h"

#include "statements/camt/xml_characters.h"

namespace tivex {

int fail_at(statement_parser& parser, const char* text, const char* at) {
  return fail_for(parser, xml_fault::not_well_formed, line_of(text, at));
}

int fail_for(statement_parser& parser, xml_fault fault, unsigned line) {
  switch (fault) {
    case xml_fault::not_well_formed:
      return parser.fail("Not well-formed XML (line %u)", line);
    case xml_fault::doctype:
      return parser.fail("DOCTYPE not allowed (line %u)", line);
    case xml_fault::too_deep:
      return parser.fail("Elements nested too deep (line %u)", line);
    case xml_fault::none:
    case xml_fault::no_memory:
      break;
  }
  return 0;
}

}  // namespace tivex
