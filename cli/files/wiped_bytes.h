#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "platform/process.h"

namespace tivex_program {

// Overwrites memory before releasing it, also that which a growing vector leaves.
template <typename element>
struct wiping_allocator {
  using value_type = element;

  wiping_allocator() = default;
  template <typename other>
  wiping_allocator(const wiping_allocator<other>&) {}

  element* allocate(std::size_t count) { return std::allocator<element>().allocate(count); }
  void deallocate(element* memory, std::size_t count) {
    wipe(memory, count * sizeof(element));
    std::allocator<element>().deallocate(memory, count);
  }
  bool operator==(const wiping_allocator&) const = default;
};

// Bytes that hold account data.
using wiped_bytes = std::vector<char, wiping_allocator<char>>;

}  // namespace tivex_program
