#pragma once

#include "files/table_style.h"
#include "statements/statement_view.h"

namespace tivex_program {

// Each statement for people, after a blank line unless it is the first.
void begin_statement_table(const table_style& style);
void print_statement_table(const statement_view& view, bool first);
void end_statement_table();

}  // namespace tivex_program
