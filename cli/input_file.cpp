#include "input_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace tivex_program {

input_file::input_file(std::string name) : name_(std::move(name)) {
  file_ =
      descriptor(name_ == "-" ? ::dup(STDIN_FILENO) : ::open(name_.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (!file_ || ::fstat(file_.number(), &status) != 0) {
    fail();
  } else if (S_ISREG(status.st_mode)) {
    size_ = static_cast<std::uint64_t>(status.st_size);
    start_ = ::lseek(file_.number(), 0, SEEK_CUR);
  }
}

std::size_t input_file::read(char* buffer, std::size_t size) {
  if (!error_.empty()) return 0;
  for (;;) {
    const ssize_t count = ::read(file_.number(), buffer, size);
    if (count >= 0) {
      bytes_read_ += static_cast<std::uint64_t>(count);
      return static_cast<std::size_t>(count);
    }
    if (errno == EINTR) continue;
    fail();
    return 0;
  }
}

void input_file::start_again() {
  error_.clear();
  bytes_read_ = 0;
  if (::lseek(file_.number(), start_, SEEK_SET) < 0) fail();
}

void input_file::fail() { error_ = std::strerror(errno); }

}  // namespace tivex_program
