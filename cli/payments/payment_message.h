#pragma once

#include <string>
#include <vector>

#include "payments/header_option.h"
#include "payments/message_handle.h"

namespace tivex_program {

// The header that a command's options give to its messages.
struct payment_header {
  struct value {
    const header_option* option;
    std::string text;
  };

  int message_type;
  std::string rulebook;
  std::vector<value> values;  // those given
  bool single_booking;
  bool strict;
};

// Makes an empty message with the header. A value that the message refuses is told
// in `fault` with its option.
message_handle make_message(const payment_header& header, std::string& fault);

}  // namespace tivex_program
