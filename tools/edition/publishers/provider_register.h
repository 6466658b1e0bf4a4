#pragma once

#include "edition.h"
#include "publishers/published_file.h"

namespace tivex_edition {

// The register of reachable payment service providers of Deutsche Bundesbank.
publication<bic_row> read_provider_register(const published_file& file);

}  // namespace tivex_edition
