#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/descriptor.h"

namespace tivex_program {

// A file that is read from its start to its end; "-" is standard input.
class input_file {
 public:
  explicit input_file(std::string name);

  const std::string& name() const { return name_; }
  // The reason why opening or reading failed, empty when nothing did.
  const std::string& error() const { return error_; }
  // Returns the number of bytes read, 0 at the end and after a failure.
  std::size_t read(char* buffer, std::size_t size);
  std::uint64_t bytes_read() const { return bytes_read_; }
  // The size, known for regular files only.
  std::optional<std::uint64_t> size() const { return size_; }
  // Reads a regular file once more, as if nothing had been read of it.
  void start_again();

 private:
  void fail();

  std::string name_;
  std::string error_;
  descriptor file_;
  std::uint64_t bytes_read_ = 0;
  std::optional<std::uint64_t> size_;
  std::int64_t start_ = 0;  // standard input may be handed over in its middle
};

}  // namespace tivex_program
