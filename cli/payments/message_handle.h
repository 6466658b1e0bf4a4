#pragma once

#include <tivex.h>

#include <cstdlib>
#include <cstring>
#include <memory>

#include "platform/process.h"

namespace tivex_program {

struct message_deleter {
  void operator()(tivex_t* message) const { tivex_free(message); }
};
using message_handle = std::unique_ptr<tivex_t, message_deleter>;

// A document holds account data: none of it stays in released memory.
struct document_deleter {
  void operator()(char* text) const {
    wipe(text, std::strlen(text));
    std::free(text);
  }
};
using document_handle = std::unique_ptr<char, document_deleter>;

}  // namespace tivex_program
