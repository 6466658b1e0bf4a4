#pragma once

#include <tivex.h>

#include "files/value_rules.h"

namespace tivex_program {

// A value of the message's header that an option sets.
struct header_option {
  const char* flag;
  const char* placeholder;
  const char* description;
  bool required;
  int (*set)(tivex_t* message, const char* value);
  value_rule rule = text_fault;
};

}  // namespace tivex_program
