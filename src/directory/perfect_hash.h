// The order-preserving minimal perfect hash of Czech, Havas and Majewski: the
// key of record i hashes to i. Shared with the generator of the tables.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tivex {

inline constexpr std::size_t hash_shortest_key = 6;
inline constexpr std::size_t hash_longest_key = 15;
inline constexpr char hash_first_character = '0';
inline constexpr char hash_last_character = 'z';

// By character position and character.
using hash_weights =
    std::uint32_t[hash_longest_key][hash_last_character - hash_first_character + 1];

struct hash_tables {
  const hash_weights* weights[3];
  const std::int32_t* vertex_values;  // -1 for a vertex that no key reaches
  std::uint32_t vertex_count;
  std::int32_t key_count;
};

struct hash_vertices {
  std::uint32_t vertex[3];
};

// The vertices of a text; false for one that cannot be a key.
inline bool find_vertices(const hash_tables& tables, const char* key, hash_vertices& result) {
  std::uint32_t sum1 = 0;
  std::uint32_t sum2 = 0;
  std::uint32_t sum3 = 0;
  std::size_t length = 0;
  for (; key[length] != '\0'; ++length) {
    const char character = key[length];
    if (length == hash_longest_key || character < hash_first_character ||
        character > hash_last_character) {
      return false;
    }
    const auto index = static_cast<std::size_t>(character - hash_first_character);
    sum1 += (*tables.weights[0])[length][index];
    sum2 += (*tables.weights[1])[length][index];
    sum3 += (*tables.weights[2])[length][index];
  }
  result = {{sum1 % tables.vertex_count, sum2 % tables.vertex_count, sum3 % tables.vertex_count}};
  return length >= hash_shortest_key;
}

// The index of the key, some index or a negative number for any other text.
inline int perfect_hash(const hash_tables& tables, const char* key) {
  hash_vertices at = {};
  if (!find_vertices(tables, key, at)) return -1;
  const std::int32_t sum = tables.vertex_values[at.vertex[2]] + tables.vertex_values[at.vertex[1]] +
                           tables.vertex_values[at.vertex[0]];
  return sum % tables.key_count;
}

}  // namespace tivex
