#pragma once

#include <tivex.h>

#include <string_view>

#include "files/value_rules.h"

namespace tivex_program {

// A value of the message's header that an option sets. A flag has neither a placeholder nor a
// value.
struct header_option {
  const char* flag;
  const char* placeholder;
  const char* description;
  int (*set)(tivex_t* message, const char* value);
  value_rule rule = text_fault;
  // Set where the library keeps the value from the document under every other rulebook.
  std::string_view only_rulebook = {};
  bool required = false;
  value_form form = value_form::text;

  bool is_flag() const { return placeholder == nullptr; }
};

}  // namespace tivex_program
