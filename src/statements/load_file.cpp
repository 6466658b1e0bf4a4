#include "statements/load_file.h"

#include <cerrno>
#include <utility>

#include "platform/input_file.h"
#include "platform/platform.h"
#include "statements/formats.h"

namespace tivex {

namespace {

// Notes a failure with the system's reason.
int fail_with_reason(statement_parser& parser, const char* what, int error) {
  char buffer[128];
  return parser.fail("%s: %s", what, platform::error_text(error, buffer, sizeof buffer));
}

// Reads up to `wanted` bytes; fewer when the file has become shorter. Returns false
// on a failure.
bool read_whole(const platform::input_file& file, text_block& block, std::size_t wanted) {
  std::size_t arrived = 0;
  while (arrived < wanted) {
    const std::ptrdiff_t count = file.read(block.text + arrived, wanted - arrived);
    if (count == 0) break;
    if (count > 0) {
      arrived += static_cast<std::size_t>(count);
    } else if (errno != EINTR) {
      return false;
    }
  }
  block.text[arrived] = '\0';
  block.length = arrived;
  return true;
}

}  // namespace

int load_file(statement_parser& parser, const char* path) {
  if (parser.mt940 == nullptr) return parser.fail("%s", "MT940 parser not initialized");
  platform::input_file file;
  if (!file.open(path)) return fail_with_reason(parser, "Can't open input file", errno);
  std::int64_t size = 0;
  if (!file.get_size(size)) return fail_with_reason(parser, "Can't stat input file", errno);
  if (size <= 0) return parser.fail("%s", "Input file is empty");
  const auto wanted = static_cast<std::size_t>(size);
  const bool fits = static_cast<std::int64_t>(wanted) == size && wanted + 1 != 0;
  text_block block(fits ? wanted + 1 : static_cast<std::size_t>(-1));
  if (block.text == nullptr) {
    // A long is too short for the size on some systems.
    return parser.fail("Failed to allocate %lli bytes", static_cast<long long>(size));
  }
  platform::prefer_large_pages(block.text, block.size);
  if (!read_whole(file, block, wanted)) {
    return fail_with_reason(parser, "Error while reading from file", errno);
  }
  if (find_format(parser.format)(parser, block) != 1) return 0;
  parser.mt940->text = std::exchange(block.text, nullptr);
  parser.mt940->size = block.size;
  return 1;
}

}  // namespace tivex
