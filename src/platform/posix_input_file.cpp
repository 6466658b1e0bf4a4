#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/input_file.h"

namespace tivex::platform {

namespace {

// The two forms in which strerror_r exists: the first returns the text, the second
// an error number.
const char* text_of(const char* text, const char*) { return text; }
[[maybe_unused]] const char* text_of(int, const char* buffer) { return buffer; }

}  // namespace

input_file::~input_file() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

bool input_file::open(const char* path) {
  if (path == nullptr) {
    errno = EFAULT;
    return false;
  }
  descriptor_ = ::open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  return descriptor_ >= 0;
}

bool input_file::get_size(std::int64_t& bytes) const {
  struct stat status = {};
  if (::fstat(descriptor_, &status) != 0) return false;
  bytes = status.st_size;
  return true;
}

std::ptrdiff_t input_file::read(char* buffer, std::size_t size) const {
  return ::read(descriptor_, buffer, size);
}

const char* error_text(int error, char* buffer, std::size_t size) {
  buffer[0] = '\0';
  return text_of(strerror_r(error, buffer, size), buffer);
}

}  // namespace tivex::platform
