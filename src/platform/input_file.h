#pragma once

#include <cstddef>
#include <cstdint>

namespace tivex::platform {

// A file opened for reading, its bytes as they are stored. What fails leaves the
// reason in errno.
class input_file {
 public:
  input_file() = default;
  input_file(const input_file&) = delete;
  input_file& operator=(const input_file&) = delete;
  ~input_file();

  // Does not wait for the other end of a pipe, but while another process gives up its
  // lease on the file.
  bool open(const char* path);
  bool get_size(std::int64_t& bytes) const;
  // The number of bytes read, 0 at the end, -1 on failure.
  std::ptrdiff_t read(char* buffer, std::size_t size) const;

 private:
  int descriptor_ = -1;
};

// The system's text for a value of errno.
const char* error_text(int error, char* buffer, std::size_t size);

}  // namespace tivex::platform
