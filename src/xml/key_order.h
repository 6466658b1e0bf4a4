// An order by keys in a time that grows with the number of entries alone.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <utility>

#include "xml/block_key.h"

namespace tivex {

template <class entry>
bool in_order(std::span<const entry> entries) {
  return std::is_sorted(entries.begin(), entries.end(),
                        [](const entry& left, const entry& right) { return left.key < right.key; });
}

// Orders some entries by their keys; those with the same key keep their order. They are
// moved to and fro between two places once for each byte that is not the same in all
// keys, and end in the one that is returned.
template <class entry>
std::span<entry> order_by_key(std::span<entry> entries, std::span<entry> room) {
  block_key differences;
  for (const entry& each : entries) differences.note_difference(each.key, entries.front().key);
  for (std::size_t place = 0; place < block_key::bytes; ++place) {
    if (differences.byte(place) == 0) continue;
    std::array<std::uint32_t, 256> next = {};
    for (const entry& each : entries) ++next[each.key.byte(place)];
    std::uint32_t before = 0;
    for (std::uint32_t& count : next) before += std::exchange(count, before);
    for (const entry& each : entries) room[next[each.key.byte(place)]++] = each;
    std::swap(entries, room);
  }
  return entries;
}

}  // namespace tivex
