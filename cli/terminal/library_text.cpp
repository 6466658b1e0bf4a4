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

// Some texts begin with the name of the function that says it, which the user has not called.
std::string_view without_function_name(std::string_view text) {
  const std::size_t colon = text.find(": ");
  const std::string_view start = text.substr(0, colon);
  const bool named = colon != std::string_view::npos && start.find('_') != std::string_view::npos &&
                     start.find(' ') == std::string_view::npos;
  return named ? text.substr(colon + 2) : text;
}

}  // namespace

std::string library_text(const char* text) {
  // It has no text when it did not come to make one.
  if (text == nullptr || tells_exhaustion(text)) end_for_want_of_memory();
  return std::string(without_function_name(text));
}

}  // namespace tivex_program
