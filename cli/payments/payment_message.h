#pragma once

#include <string>
#include <string_view>
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
  std::string true_iban = {};  // when the value of --iban only stands for it
  bool has_own_date = true;    // not when that of --date is only the day of today
};

// The text of an option of the header, empty when it is not given.
std::string_view given_value(const payment_header& header, std::string_view flag);

// The account that --iban names.
std::string_view own_iban(const payment_header& header);

// Makes an empty message with the header. A value that the message refuses is told
// in `fault` with its option.
message_handle make_message(const payment_header& header, std::string& fault);

}  // namespace tivex_program
