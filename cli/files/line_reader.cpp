#include "files/line_reader.h"

#include <cstring>

#include "files/utf8.h"

namespace tivex_program {
namespace {

constexpr std::size_t buffer_size = std::size_t{1} << 16;
// Far above anything that is asked for: a file without line ends must not fill memory.
constexpr std::size_t line_limit = std::size_t{1} << 20;

}  // namespace

// One byte more, for the NUL behind a last line without end.
line_reader::line_reader(input_file& input) : input_(input), buffer_(buffer_size + 1) {}

bool line_reader::next(std::string_view& line) {
  std::size_t searched = 0;
  while (error_.empty()) {
    const char* const start = buffer_.data() + position_;
    const std::size_t length = filled_ - position_;
    const void* const found = std::memchr(start + searched, '\n', length - searched);
    if (found != nullptr) {
      line = take(static_cast<std::size_t>(static_cast<const char*>(found) - start));
    } else if (searched = length; refill()) {
      continue;
    } else if (error_.empty() && length > 0) {
      line = take(length);
    } else {
      return false;
    }
    searched = 0;
    if (!line.empty()) return true;
  }
  return false;
}

// Reads on behind the part of a line that is there. False at the end of the file.
bool line_reader::refill() {
  std::memmove(buffer_.data(), buffer_.data() + position_, filled_ - position_);
  filled_ -= position_;
  position_ = 0;
  if (filled_ >= line_limit) {
    error_ = "line " + std::to_string(line_ + 1) + " is too long (1 MiB or more)";
    return false;
  }
  if (filled_ + 1 == buffer_.size()) buffer_.resize(2 * filled_ + 1);
  const std::size_t count = input_.read(buffer_.data() + filled_, buffer_.size() - 1 - filled_);
  filled_ += count;
  error_ = input_.error();
  return count > 0;
}

// Cuts off a line of the length and what ends it.
std::string_view line_reader::take(std::size_t length) {
  std::string_view line(buffer_.data() + position_, length);
  position_ += length == filled_ - position_ ? length : length + 1;
  if (line.ends_with('\r')) line.remove_suffix(1);
  buffer_[static_cast<std::size_t>(line.data() - buffer_.data()) + line.size()] = '\0';
  if (++line_ == 1 && line.starts_with(byte_order_mark)) line.remove_prefix(byte_order_mark.size());
  return line;
}

}  // namespace tivex_program
