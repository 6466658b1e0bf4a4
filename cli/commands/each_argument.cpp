#include "commands/each_argument.h"

#include <cstddef>
#include <string_view>

#include "files/input_file.h"
#include "terminal/diagnostics.h"

namespace tivex_program {
namespace {

using line_taker = std::function<void(const std::string&)>;

void take_line(std::string& line, const line_taker& take) {
  if (line.ends_with('\r')) line.pop_back();
  if (!line.empty()) take(line);
  line.clear();
}

bool for_each_line(const line_taker& take) {
  std::vector<char> buffer(std::size_t{1} << 16);
  input_file input("-");
  std::string line;
  while (const std::size_t count = input.read(buffer.data(), buffer.size())) {
    std::string_view text(buffer.data(), count);
    for (std::size_t end = 0; (end = text.find('\n')) != std::string_view::npos;) {
      line += text.substr(0, end);
      take_line(line, take);
      text.remove_prefix(end + 1);
    }
    line += text;
  }
  if (!input.error().empty()) {
    print_error("-: " + input.error());
    return false;
  }
  // The last line needs no end.
  take_line(line, take);
  return true;
}

}  // namespace

bool for_each_argument(const std::vector<std::string>& arguments, const line_taker& take) {
  bool read = true;
  for (const std::string& argument : arguments) {
    if (argument == "-") {
      read = for_each_line(take) && read;
    } else {
      take(argument);
    }
  }
  return read;
}

}  // namespace tivex_program
