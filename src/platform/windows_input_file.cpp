#include <errno.h>
#include <fcntl.h>
#include <io.h>
#include <string.h>
#include <sys/stat.h>

#include <algorithm>

#include "platform/input_file.h"

namespace tivex::platform {

input_file::~input_file() {
  if (descriptor_ >= 0) _close(descriptor_);
}

bool input_file::open(const char* path) {
  if (path == nullptr) {
    errno = EFAULT;
    return false;
  }
  descriptor_ = _open(path, _O_RDONLY | _O_BINARY);
  return descriptor_ >= 0;
}

bool input_file::get_size(std::int64_t& bytes) const {
  struct _stat64 status = {};
  if (_fstat64(descriptor_, &status) != 0) return false;
  bytes = status.st_size;
  return true;
}

std::ptrdiff_t input_file::read(char* buffer, std::size_t size) const {
  constexpr std::size_t most_at_once = 1u << 30;
  return _read(descriptor_, buffer, static_cast<unsigned>(std::min(size, most_at_once)));
}

const char* error_text(int error, char* buffer, std::size_t size) {
  strerror_s(buffer, size, error);
  return buffer;
}

}  // namespace tivex::platform
