#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tivex_program {

// Owns a file descriptor; whatever it moves are bytes. The reason of a failure is in errno.
class descriptor {
 public:
  descriptor() = default;
  explicit descriptor(int number) : number_(number) {}
  descriptor(descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  descriptor& operator=(descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~descriptor();

  static descriptor to_read(const std::string& name);
  // Copies of these, which may be closed.
  static descriptor of_standard_input();
  static descriptor of_standard_output();

  int number() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }
  // The number of bytes read, 0 at the end and -1 after a failure.
  std::ptrdiff_t read(char* buffer, std::size_t size) const;
  // False when not all was written.
  bool write_all(std::string_view text) const;
  // The size of a regular file, nothing in it for others.
  bool find_size(std::optional<std::uint64_t>& size) const;
  std::int64_t position() const;
  bool go_to(std::int64_t position) const;
  // Closes it and tells whether that went well: some file systems report a
  // failed write only here.
  bool close();

 private:
  int number_ = -1;
};

}  // namespace tivex_program
