// Messages as hosts might make them: complete, incomplete and with odd values.
#pragma once

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "support/messages.h"

using property = std::pair<std::string, std::string>;

struct random_message {
  int type;
  std::string made_under;  // the rulebook
  std::string written_under;
  std::vector<property> header;  // setters, as the test data name them
  std::vector<std::vector<property>> transactions;
};

random_message make_random_message(std::mt19937& random, int type, const std::string& rulebook);

// The message as the library holds it, and the transactions that it took.
struct made_message {
  message_ptr msg;
  std::vector<std::vector<property>> transactions;
};
made_message make(const random_message& plan);
