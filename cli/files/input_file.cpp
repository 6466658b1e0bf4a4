#include "files/input_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

namespace tivex_program {

input_file::input_file(std::string name) : name_(std::move(name)) {
  file_ = name_ == "-" ? descriptor::of_standard_input() : descriptor::to_read(name_);
  if (!file_ || !file_.find_size(size_)) {
    fail();
  } else if (size_) {
    start_ = file_.position();
  }
}

std::size_t input_file::read(char* buffer, std::size_t size) {
  if (!error_.empty()) return 0;
  // Who waits for answers before asking more gets them now.
  std::fflush(stdout);
  const std::ptrdiff_t count = file_.read(buffer, size);
  if (count < 0) {
    fail();
    return 0;
  }
  bytes_read_ += static_cast<std::uint64_t>(count);
  return static_cast<std::size_t>(count);
}

void input_file::start_again() {
  error_.clear();
  bytes_read_ = 0;
  if (!file_.go_to(start_)) fail();
}

void input_file::fail() { error_ = std::strerror(errno); }

}  // namespace tivex_program
