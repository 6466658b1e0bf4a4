#include "terminal/colours.h"

#include <cstdlib>

#include "platform/process.h"

namespace tivex_program {
namespace {

bool are_unwanted() {
  const char* const wish = std::getenv("NO_COLOR");
  return wish != nullptr && *wish != '\0';
}

}  // namespace

std::string coloured(std::string_view text, colour shade, int stream) {
  static const bool shown[] = {!are_unwanted() && takes_colours(1),
                               !are_unwanted() && takes_colours(2)};
  if (!shown[stream - 1]) return std::string(text);
  return (shade == colour::red ? "\x1B[31m" : "\x1B[1;31m") + std::string(text) + "\x1B[m";
}

}  // namespace tivex_program
