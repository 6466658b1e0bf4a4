#pragma once

#include "edition.h"
#include "publishers/published_file.h"

namespace tivex_edition {

// The bank master of SIX Interbank Clearing, in JSON.
publication<bank_row> read_swiss_bank_master(const published_file& file);

}  // namespace tivex_edition
