#pragma once

#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace tivex_program {

// Owns a file descriptor.
class descriptor {
 public:
  descriptor() = default;
  explicit descriptor(int number) : number_(number) {}
  descriptor(descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  descriptor& operator=(descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  int number() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }
  // False, with the reason in errno, when not all was written.
  bool write_all(std::string_view text) const {
    while (!text.empty()) {
      const ssize_t count = ::write(number_, text.data(), text.size());
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return false;
      text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
  }
  // Closes it and tells whether that went well: some file systems report a
  // failed write only here.
  bool close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_ = -1;
};

}  // namespace tivex_program
