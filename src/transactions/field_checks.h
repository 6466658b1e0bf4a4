// The checks that a value of a transaction's text field must pass before a copy
// of it is stored.
#pragma once

#include <cstddef>

#include "core/message.h"
#include "core/owned_text.h"

namespace tivex {

inline constexpr int ANY_CHARACTERS = -1;

// The limits of a text in bytes, its character set, and the texts that refuse a
// value; "%c" receives the first byte refused.
struct text_rule {
  std::size_t shortest = 0;
  std::size_t longest = 0;
  const char* length_error = nullptr;
  int level = ANY_CHARACTERS;
  const char* character_error = nullptr;
};

// Each checks a value, which may be null, and stores a copy in the field, or
// notes in the message why not and returns false. A copy that cannot be
// allocated leaves the field unset and is not a fault of the value.
using field_check = bool(message& msg, const text_rule& rule, const char* value, owned_text& field);

field_check accept_text;
field_check accept_iban;
field_check accept_bic;
field_check accept_country;
field_check accept_address_line;
field_check accept_creditor_reference;

}  // namespace tivex
