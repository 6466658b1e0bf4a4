// The library's calls as the program makes them: what fails for want of memory ends
// the program.
#pragma once

#include <tivex.h>

#include <string>

#include "payments/message_handle.h"

namespace tivex_program {

// Makes an empty message.
message_handle new_message(int type);

// As tivex_add, with the memory that it needs.
bool add_transaction(tivex_t* message, const tivex_keyvalue_t* list);

// The reason of the latest refusal.
std::string library_error(const tivex_t* message);

}  // namespace tivex_program
