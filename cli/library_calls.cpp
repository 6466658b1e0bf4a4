#include "library_calls.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "exhausted_memory.h"

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

std::string checked(const char* text) {
  // It has no text when it did not come to make one.
  if (text == nullptr || tells_exhaustion(text)) end_for_want_of_memory();
  return text;
}

// A value that could not be copied is left out without a word unless the message is
// strict. No transaction that is taken needs as much; less than the allocator asks the
// system for singly costs next to nothing.
constexpr std::size_t memory_of_a_transaction = std::size_t{1} << 16;

}  // namespace

message_handle new_message(int type) {
  message_handle message(tivex_new(type));
  if (!message) end_for_want_of_memory();
  return message;
}

bool add_transaction(tivex_t* message, const tivex_keyvalue_t* list) {
  require_memory(memory_of_a_transaction);
  return tivex_add(message, list) == 1;
}

std::string library_error(const tivex_t* message) { return checked(tivex_getError(message)); }

std::string library_error(const tivex_stmt_parser_t* parser) {
  return checked(tivex_stmt_parser_getError(parser));
}

}  // namespace tivex_program
