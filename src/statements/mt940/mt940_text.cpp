#include "statements/mt940/mt940_text.h"

#include <cstring>
#include <string_view>

#include "statements/text_steps.h"

namespace tivex {

char* next_character::find(char* from) {
  if (found_ != nullptr && from <= found_) {
    if (found_ == end_ || *found_ == character_) return found_;
    // It has been replaced; there was none in front of it.
    from = found_ + 1;
  }
  auto* const found =
      static_cast<char*>(std::memchr(from, character_, static_cast<std::size_t>(end_ - from)));
  found_ = found == nullptr ? end_ : found;
  return found_;
}

bool last_tag_start::is_behind(const char* line_end) {
  constexpr std::string_view tag_start = "\r\n:";
  if (found_ == nullptr) {
    found_ = end_;
    while (found_ > text_ && !starts_with(found_, end_, tag_start)) --found_;
  }
  return found_ >= line_end && starts_with(found_, end_, tag_start);
}

}  // namespace tivex
