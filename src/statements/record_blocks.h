// The statements and entries of a parser, one behind the other in a few blocks, and texts
// that have no place in the file's.
#pragma once

#include <cstddef>
#include <new>

namespace tivex {

class record_blocks {
 public:
  record_blocks() = default;
  record_blocks(const record_blocks&) = delete;
  record_blocks& operator=(const record_blocks&) = delete;
  ~record_blocks() { release(); }

  // A new record with every field at its initial value, or null when memory is
  // exhausted. It stays where it is until all are released.
  template <class record>
  record* make() {
    static_assert(sizeof(record) < smallest_block / 2);
    static_assert(alignof(record) == alignof(block), "one may follow the other");
    void* const place = room_for(sizeof(record));
    return static_cast<record*>(place);
  }

  // Room for a text of this size, which stays like a record; null when memory is exhausted.
  char* make_text(std::size_t size) {
    constexpr std::size_t whole = alignof(block);
    return static_cast<char*>(room_for((size + whole - 1) / whole * whole));
  }

  // Overwrites the records with zeros and releases them.
  void release();

 private:
  // The head of a block; the records stand behind it. They hold numbers of this type; more
  // than that a system's memory need not be aligned to.
  struct alignas(double) block {
    block* next;  // the one filled before
    std::size_t capacity;
    std::size_t used;
  };

  static constexpr std::size_t smallest_block = 4096;

  void* room_for(std::size_t size) {
    if (newest_ == nullptr || newest_->capacity - newest_->used < size) {
      if (!add_block(size)) return nullptr;
    }
    char* const place = reinterpret_cast<char*>(newest_ + 1) + newest_->used;
    newest_->used += size;
    return place;
  }
  bool add_block(std::size_t room);

  block* newest_ = nullptr;
};

}  // namespace tivex
