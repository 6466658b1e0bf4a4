#include "statements/record_blocks.h"

#include <algorithm>
#include <cstdlib>

#include "platform/platform.h"

namespace tivex {

namespace {

constexpr std::size_t largest_block = std::size_t{16} << 20;
// With what the allocator adds, a block is to fill whole pages.
constexpr std::size_t allocator_overhead = 32;

}  // namespace

// Each block is twice as large as the one before: few of them for many records, and
// little more memory than needed for few records.
bool record_blocks::add_block() {
  const std::size_t before = newest_ != nullptr ? newest_->capacity + sizeof(block) : 0;
  const std::size_t doubled = 2 * (before + allocator_overhead);
  const std::size_t size = std::clamp(doubled, smallest_block, largest_block) - allocator_overhead;
  void* const memory = std::calloc(1, size);
  if (memory == nullptr) return false;
  platform::prefer_large_pages(memory, size);
  newest_ = new (memory) block{newest_, size - sizeof(block), 0};
  return true;
}

void record_blocks::release() {
  while (newest_ != nullptr) {
    block* const released = newest_;
    newest_ = released->next;
    platform::wipe(released, sizeof(block) + released->used);
    std::free(released);
  }
}

}  // namespace tivex
