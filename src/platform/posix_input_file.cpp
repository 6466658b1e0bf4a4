// Files of 2 GiB and more on 32-bit systems too.
#define _FILE_OFFSET_BITS 64  // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

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
  constexpr int flags = O_RDONLY | O_CLOEXEC;
  // Without waiting, lest a pipe that nobody writes into waits for ever.
  descriptor_ = ::open(path, flags | O_NONBLOCK);
  if (descriptor_ >= 0) {
    // Reading is to wait for its bytes. Should this fail, files read the same.
    static_cast<void>(::fcntl(descriptor_, F_SETFL, 0));
  } else if (errno == EWOULDBLOCK) {
    // Another process has a lease on the file, and the system bounds the time that it
    // has to give it up. A pipe is never refused so.
    descriptor_ = ::open(path, flags);
  }
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
