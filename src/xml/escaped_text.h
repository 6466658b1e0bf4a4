#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tivex {

// A text that is written with entities in place of "<", ">" and "&", measured at once.
class escaped_text {
 public:
  explicit escaped_text(std::string_view text) : text_(text), size_(text.size()) {
    for (const char c : text) size_ += extra_bytes[static_cast<unsigned char>(c)];
  }

  // Of what is written.
  std::size_t size() const { return size_; }

  // Writes it and returns the place behind it.
  char* put(char* out) const {
    if (size_ != text_.size()) return put_entities(out);
    std::memcpy(out, text_.data(), text_.size());
    return out + text_.size();
  }

 private:
  // By how many bytes an entity is longer than its character.
  static constexpr auto extra_bytes = [] {
    std::array<std::uint8_t, 256> extra = {};
    extra['<'] = extra['>'] = 3;
    extra['&'] = 4;
    return extra;
  }();

  char* put_entities(char* out) const;

  std::string_view text_;
  std::size_t size_;
};

}  // namespace tivex
