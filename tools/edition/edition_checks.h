#pragma once

#include "edition.h"
#include "faults.h"

namespace tivex_edition {

// What no single row tells: keys that occur twice, second versions without a
// first, different dates of change, successors that do not exist or lead in a
// circle.
void check_edition(const edition& facts, fault_list& faults);

}  // namespace tivex_edition
