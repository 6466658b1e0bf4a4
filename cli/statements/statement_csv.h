#pragma once

#include "files/table_style.h"
#include "statements/statement_view.h"

namespace tivex_program {

// A header, and a line for each entry of all statements.
void begin_statement_csv(const table_style& style);
void print_statement_csv(const statement_view& view, bool first);
void end_statement_csv();

}  // namespace tivex_program
