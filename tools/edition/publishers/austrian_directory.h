#pragma once

#include "edition.h"
#include "publishers/published_file.h"

namespace tivex_edition {

// The SEPA directory of Oesterreichische Nationalbank: the head offices.
publication<bank_row> read_austrian_directory(const published_file& file);

}  // namespace tivex_edition
