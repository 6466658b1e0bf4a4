// The directory's generated tables.
#pragma once

#include "directory/data/constants.h"
#include "directory/perfect_hash.h"

namespace tivex {

// In ascending order of the keys that they begin with; record_layout.h tells
// where things stand in them.
extern const char* const directory_records[directory_record_count];

extern const hash_weights directory_hash_t1;
extern const hash_weights directory_hash_t2;
extern const hash_weights directory_hash_t3;
extern const std::int32_t directory_hash_g[directory_vertex_count];

}  // namespace tivex
