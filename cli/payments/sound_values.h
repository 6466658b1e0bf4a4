#pragma once

#include <tivex.h>

namespace tivex_program {

// A transaction that every rulebook and schema takes; a value that follows replaces
// its own. Credit transfers ignore what only direct debits need.
inline constexpr tivex_keyvalue_t sound_values[] = {{"iban", "AT611904300234573201"},
                                                    {"bic", "BKAUATWWXXX"},
                                                    {"amount", "1"},
                                                    {"name", "Name"},
                                                    {"seq", "RCUR"},
                                                    {"mref", "M"},
                                                    {"mdate", "2026-01-01"}};

}  // namespace tivex_program
