#include "platform/exhausted_memory.h"

#include <cstdlib>
#include <exception>
#include <new>

#include "platform/exit_status.h"
#include "platform/process.h"

namespace tivex_program {
namespace {

const char* file_to_remove = nullptr;

// Where no exception is under way, there was no memory for one.
[[noreturn]] void on_terminate() {
  if (std::current_exception() == nullptr) end_for_want_of_memory();
  std::abort();
}

// Static objects, those of the library for arguments too, take memory before main.
[[gnu::constructor(101)]] void watch_memory() {
  std::set_new_handler(end_for_want_of_memory);
  std::set_terminate(on_terminate);
}

}  // namespace

void end_for_want_of_memory() {
  if (file_to_remove != nullptr) remove_file(file_to_remove);
  end_at_once("Out of memory\n", exit_failure);
}

void require_memory(std::size_t bytes) {
  // Asked for without the compiler seeing that it is not used.
  void* const volatile memory = std::malloc(bytes);
  if (memory == nullptr) end_for_want_of_memory();
  std::free(memory);
}

void remove_when_memory_ends(const char* name) { file_to_remove = name; }

}  // namespace tivex_program
