// The text of a file, in a block of the C run-time.
#pragma once

#include <cstddef>
#include <cstdlib>

#include "platform/platform.h"

namespace tivex {

// Wiped and released at the end of its life. The text is null when there was no memory.
struct text_block {
  explicit text_block(std::size_t capacity)
      : size(capacity), text(static_cast<char*>(std::malloc(capacity))) {}
  text_block(const text_block&) = delete;
  text_block& operator=(const text_block&) = delete;
  ~text_block() { clear(); }

  void clear() {
    if (text != nullptr) platform::wipe(text, size);
    std::free(text);
    text = nullptr;
  }

  // Takes the text of another one, which has none then.
  void take(text_block& other) {
    clear();
    size = other.size;
    length = other.length;
    text = other.text;
    other.text = nullptr;
  }

  std::size_t size;        // of the block
  std::size_t length = 0;  // of the text, which a NUL follows
  char* text;
};

}  // namespace tivex
