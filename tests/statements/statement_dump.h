#pragma once

#include <string>

#include "tivex.h"

// What a parser holds, a line for each field that is not null, 0 or empty: "stmt 0
// tx 2 amount=-12.5". Entries and statements count from 0. Bytes other than printable
// ASCII stand as \xHH, dates as day, month from 0, year since 1900. The full name is left out
// where it is the name.
std::string dump_of(const tivex_stmt_t* first);
