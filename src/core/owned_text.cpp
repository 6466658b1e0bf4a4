#include "core/owned_text.h"

#include <cstdlib>
#include <cstring>

#include "platform/platform.h"

namespace tivex {

bool owned_text::assign(const char* text) {
  const std::size_t size = std::strlen(text) + 1;
  char* const copy = static_cast<char*>(std::malloc(size));
  if (copy != nullptr) std::memcpy(copy, text, size);
  clear();
  text_ = copy;
  return copy != nullptr;
}

void owned_text::clear() {
  if (text_ == nullptr) return;
  platform::wipe(text_, std::strlen(text_));
  std::free(text_);
  text_ = nullptr;
}

}  // namespace tivex
