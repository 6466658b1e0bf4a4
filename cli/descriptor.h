#pragma once

#include <unistd.h>

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
  // Closes it and tells whether that went well: some file systems report a
  // failed write only here.
  bool close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_ = -1;
};

}  // namespace tivex_program
