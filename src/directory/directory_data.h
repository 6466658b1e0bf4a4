// The directory's generated tables.
#pragma once

#include "directory/data/constants.h"
#include "directory/perfect_hash.h"

namespace tivex {

// In ascending order of the keys that they begin with; record_layout.h tells
// where things stand in them.
extern const char* const directory_records[directory_record_count];

// A bit for each record, the lowest one first: whether it is a German one with a second
// version.
extern const std::uint64_t directory_second_versions[(directory_record_count + 63) / 64];

inline bool directory_has_second_version(int index) {
  return (directory_second_versions[index / 64] >> (index % 64) & 1) != 0;
}

extern const hash_weights directory_hash_t1;
extern const hash_weights directory_hash_t2;
extern const hash_weights directory_hash_t3;
extern const std::int32_t directory_hash_g[directory_vertex_count];

}  // namespace tivex
