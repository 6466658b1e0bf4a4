#include "core/owned_text.h"

#include <cstdlib>
#include <cstring>

#include "platform/platform.h"

namespace tivex {

bool owned_text::assign(std::string_view text) {
  char* const copy = static_cast<char*>(std::malloc(text.size() + 1));
  if (copy != nullptr) {
    std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
  }
  clear();
  text_ = copy;
  return copy != nullptr;
}

void owned_text::release() {
  platform::wipe(text_, std::strlen(text_));
  std::free(text_);
  text_ = nullptr;
}

}  // namespace tivex
