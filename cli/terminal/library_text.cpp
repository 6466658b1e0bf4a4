#include "terminal/library_text.h"

#include <algorithm>
#include <string_view>

#include "platform/exhausted_memory.h"

namespace tivex_program {
namespace {

// How the library says it.
constexpr std::string_view exhausted_ends[] = {"strdup() failed", "malloc() failed",
                                               "Out of memory", "lost (out of memory)"};
constexpr std::string_view exhausted_starts[] = {"Error while allocating ", "Failed to allocate "};

bool tells_exhaustion(std::string_view text) {
  const auto ends = [text](std::string_view end) { return text.ends_with(end); };
  const auto starts = [text](std::string_view start) { return text.starts_with(start); };
  return std::ranges::any_of(exhausted_ends, ends) || std::ranges::any_of(exhausted_starts, starts);
}

}  // namespace

std::string library_text(const char* text) {
  // It has no text when it did not come to make one.
  if (text == nullptr || tells_exhaustion(text)) end_for_want_of_memory();
  return text;
}

}  // namespace tivex_program
