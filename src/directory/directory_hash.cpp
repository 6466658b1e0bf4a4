#include "directory/directory_hash.h"

#include "directory/directory_data.h"

namespace tivex {

int directory_hash(const char* key) {
  constexpr hash_tables tables = {{&directory_hash_t1, &directory_hash_t2, &directory_hash_t3},
                                  directory_hash_g,
                                  directory_vertex_count,
                                  directory_record_count};
  return perfect_hash(tables, key);
}

}  // namespace tivex
