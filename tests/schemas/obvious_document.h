#pragma once

#include <string>

#include "schemas/random_message.h"

// A message under the newest rulebook as somebody would write it who asks no schema: each
// value in its element, a payment block for each transaction.
std::string obvious_document(const made_message& made);
