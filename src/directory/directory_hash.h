#pragma once

#include "directory/directory_data.h"

namespace tivex {

// The index of the record with this key. Other texts give a negative number or
// the index of some record: the caller compares. Inline, for the length is mostly known
// to the compiler.
inline int directory_hash(std::string_view key) {
  constexpr hash_tables tables = {{&directory_hash_t1, &directory_hash_t2, &directory_hash_t3},
                                  directory_hash_g,
                                  directory_vertex_count,
                                  directory_record_count};
  return perfect_hash(tables, key);
}

}  // namespace tivex
