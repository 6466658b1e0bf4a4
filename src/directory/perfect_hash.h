// The order-preserving minimal perfect hash of Czech, Havas and Majewski: the
// key of record i hashes to i. Shared with the generator of the tables.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

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
inline bool find_vertices(const hash_tables& tables, std::string_view key, hash_vertices& result) {
  constexpr auto place_of = [](char c) {
    return static_cast<unsigned>(static_cast<unsigned char>(c)) - hash_first_character;
  };
  if (key.size() < hash_shortest_key || key.size() > hash_longest_key) return false;
  bool fits = true;
  for (const char c : key) fits &= place_of(c) <= place_of(hash_last_character);
  if (!fits) return false;
  std::uint32_t sums[3] = {};
  for (std::size_t position = 0; position < key.size(); ++position) {
    const unsigned place = place_of(key[position]);
    sums[0] += (*tables.weights[0])[position][place];
    sums[1] += (*tables.weights[1])[position][place];
    sums[2] += (*tables.weights[2])[position][place];
  }
  for (std::size_t table = 0; table < 3; ++table) {
    result.vertex[table] = sums[table] % tables.vertex_count;
  }
  return true;
}

// The index of the key, some index or a negative number for any other text.
inline int perfect_hash(const hash_tables& tables, std::string_view key) {
  hash_vertices at = {};
  if (!find_vertices(tables, key, at)) return -1;
  const std::int32_t sum = tables.vertex_values[at.vertex[2]] + tables.vertex_values[at.vertex[1]] +
                           tables.vertex_values[at.vertex[0]];
  return sum % tables.key_count;
}

}  // namespace tivex
