#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/descriptor.h"

namespace tivex_program {

descriptor::~descriptor() {
  if (number_ >= 0) ::close(number_);
}

descriptor descriptor::to_read(const std::string& name) {
  return descriptor(::open(name.c_str(), O_RDONLY | O_CLOEXEC));
}

descriptor descriptor::of_standard_input() { return descriptor(::dup(STDIN_FILENO)); }

descriptor descriptor::of_standard_output() { return descriptor(::dup(STDOUT_FILENO)); }

std::ptrdiff_t descriptor::read(char* buffer, std::size_t size) const {
  for (;;) {
    const ssize_t count = ::read(number_, buffer, size);
    if (count >= 0 || errno != EINTR) return count;
  }
}

bool descriptor::write_all(std::string_view text) const {
  while (!text.empty()) {
    const ssize_t count = ::write(number_, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool descriptor::find_size(std::optional<std::uint64_t>& size) const {
  struct stat status {};
  if (::fstat(number_, &status) != 0) return false;
  if (S_ISREG(status.st_mode)) size = static_cast<std::uint64_t>(status.st_size);
  return true;
}

std::int64_t descriptor::position() const { return ::lseek(number_, 0, SEEK_CUR); }

bool descriptor::go_to(std::int64_t position) const {
  return ::lseek(number_, static_cast<off_t>(position), SEEK_SET) >= 0;
}

bool descriptor::close() { return ::close(std::exchange(number_, -1)) == 0; }

}  // namespace tivex_program
