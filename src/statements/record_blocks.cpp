#include "statements/record_blocks.h"

#include <algorithm>
#include <cstdlib>

#include "platform/platform.h"

namespace tivex {

namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20;
constexpr std::size_t doubled_up_to = mebibyte;
// So large that allocators ask the system for it, which need not be cleared and takes
// memory only where it is used; of large pages it holds a whole number.
constexpr std::size_t large_block = 34 * mebibyte;
// With what the allocator adds, a block is to fill whole pages.
constexpr std::size_t allocator_overhead = 32;

}  // namespace

// Few blocks for many records, and little more memory than needed for few records.
bool record_blocks::add_block(std::size_t room) {
  std::size_t whole = smallest_block;
  if (newest_ != nullptr) {
    const std::size_t before = newest_->capacity + sizeof(block) + allocator_overhead;
    whole = before < doubled_up_to ? 2 * before : large_block;
  }
  const std::size_t size = std::max(whole - allocator_overhead, room + sizeof(block));
  void* const memory = std::calloc(1, size);
  if (memory == nullptr) return false;
  if (size >= large_block - allocator_overhead) platform::prefer_large_pages(memory, size);
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
