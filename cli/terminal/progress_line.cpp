#include "terminal/progress_line.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "platform/process.h"

namespace tivex_program {
namespace {

constexpr auto patience = std::chrono::seconds(1);
constexpr auto interval = std::chrono::milliseconds(250);

}  // namespace

progress_line::progress_line(std::optional<std::uint64_t> total_bytes, bool wanted)
    : total_bytes_(total_bytes),
      shown_(wanted && errors_go_to_terminal()),
      due_(clock::now() + patience) {}

progress_line::~progress_line() {
  // Blanks clear the line on terminals that know no control sequences, too.
  if (width_ > 0) std::fprintf(stderr, "\r%s\r", std::string(width_, ' ').c_str());
}

void progress_line::show(std::uint64_t rows, std::uint64_t bytes) {
  if (!shown_ || clock::now() < due_) return;
  due_ = clock::now() + interval;
  std::string text = std::to_string(rows) + " rows read";
  if (total_bytes_.value_or(0) > 0) {
    text += ", " + std::to_string(std::min<std::uint64_t>(100, bytes * 100 / *total_bytes_)) + " %";
  }
  width_ = std::max(width_, text.size());
  std::fprintf(stderr, "\r%s", text.c_str());
}

}  // namespace tivex_program
