#pragma once

#include <string_view>

namespace tivex {

// A text that its holder owns, or none: a malloc block that is overwritten with
// zeros over its length before it is freed. It is the size of one pointer.
class owned_text {
 public:
  constexpr owned_text() = default;
  owned_text(const owned_text&) = delete;
  owned_text& operator=(const owned_text&) = delete;
  ~owned_text() { clear(); }

  // Takes a copy in place of the text held so far. When memory is exhausted no
  // text is held afterwards and the result is false.
  bool assign(std::string_view text);

  void clear() {
    if (text_ != nullptr) release();
  }

  // Null when no text is held.
  const char* c_str() const { return text_; }
  explicit operator bool() const { return text_ != nullptr; }

 private:
  void release();

  char* text_ = nullptr;
};

static_assert(sizeof(owned_text) == sizeof(char*));

}  // namespace tivex
