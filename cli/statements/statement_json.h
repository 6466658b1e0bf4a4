#pragma once

#include "files/table_style.h"
#include "statements/statement_view.h"

namespace tivex_program {

// One array of all statements, each with its file and its entries. Between begin and
// end only one statement is held at a time, and of that one entry.
void begin_statement_json(const table_style& style);
void print_statement_json(const statement_view& view, bool first);
void end_statement_json();

}  // namespace tivex_program
