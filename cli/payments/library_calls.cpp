#include "payments/library_calls.h"

#include <cstddef>

#include "platform/exhausted_memory.h"
#include "terminal/library_text.h"

namespace tivex_program {
namespace {

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

std::string library_error(const tivex_t* message) { return library_text(tivex_getError(message)); }

}  // namespace tivex_program
