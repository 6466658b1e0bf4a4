// The exported functions of the statement parser.
#include "statements/statement_parser.h"

#include <cerrno>

#include "core/wiped_object.h"
#include "platform/float_traps.h"
#include "platform/input_file.h"
#include "statements/formats.h"
#include "statements/load_file.h"

namespace tivex {

mt940_state::~mt940_state() {
  if (text != nullptr) platform::wipe(text, size);
  std::free(text);
}

statement_parser::~statement_parser() { destroy_wiped(mt940); }

namespace {

int load(statement_parser& parser, std::int32_t format, const char* path) {
  if (parser.format != 0) return parser.fail("%s", "Parser already used");
  parser.format = format;
  if (find_format(format) == nullptr) return parser.fail("%s", "Format not (yet) supported");
  parser.mt940 = make_wiped<mt940_state>().release();
  if (parser.mt940 == nullptr) {
    char buffer[128];
    return parser.fail("Error while allocating %lu bytes: %s",
                       static_cast<unsigned long>(sizeof(mt940_state)),
                       platform::error_text(errno, buffer, sizeof buffer));
  }
  return load_file(parser, path);
}

}  // namespace

}  // namespace tivex

tivex_stmt_parser_t* tivex_stmt_parser_new() {
  return tivex::make_wiped<tivex_stmt_parser_t>().release();
}

int tivex_stmt_parser_load(tivex_stmt_parser_t* parser, int format, const char* path) {
  const tivex::platform::float_traps_off traps_off;
  return parser == nullptr ? 0 : tivex::load(*parser, format, path);
}

tivex_stmt_t* tivex_stmt_parser_getStatement(tivex_stmt_parser_t* parser) {
  return parser == nullptr ? nullptr : parser->first;
}

const char* tivex_stmt_parser_getError(const tivex_stmt_parser_t* parser) {
  return parser == nullptr ? "invalid tivex_stmt_parser_t handle" : parser->error;
}

unsigned tivex_stmt_parser_getPending(const tivex_stmt_parser_t* parser) {
  return parser == nullptr ? 0 : parser->pending;
}

void tivex_stmt_parser_free(tivex_stmt_parser_t* parser) { tivex::destroy_wiped(parser); }
