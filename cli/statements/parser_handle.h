#pragma once

#include <tivex.h>

#include <memory>

namespace tivex_program {

// The library overwrites the account data that a parser holds.
struct statement_parser_deleter {
  void operator()(tivex_stmt_parser_t* parser) const { tivex_stmt_parser_free(parser); }
};
using statement_parser_handle = std::unique_ptr<tivex_stmt_parser_t, statement_parser_deleter>;

}  // namespace tivex_program
