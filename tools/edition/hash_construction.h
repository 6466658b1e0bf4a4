#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "directory/perfect_hash.h"

namespace tivex_edition {

struct constructed_hash {
  tivex::hash_weights weights[3] = {};
  std::vector<std::int32_t> vertex_values;
  std::int32_t key_count = 0;

  tivex::hash_tables tables() const {
    return {{&weights[0], &weights[1], &weights[2]},
            vertex_values.data(),
            static_cast<std::uint32_t>(vertex_values.size()),
            key_count};
  }
};

// Makes the tables by which each key hashes to its index, the same for the same
// keys on every machine. Null when no weights were found: too few keys differ
// where the hash looks.
std::unique_ptr<constructed_hash> construct_hash(const std::vector<std::string>& keys);

}  // namespace tivex_edition
