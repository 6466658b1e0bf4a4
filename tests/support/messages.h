// Messages made, filled and read in a line each.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/message.h"
#include "core/rulebook.h"
#include "support/table.h"
#include "tivex.h"

struct message_free {
  void operator()(tivex_t* msg) const { tivex_free(msg); }
};
using message_ptr = std::unique_ptr<tivex_t, message_free>;

// In the order of their numbers.
extern const std::vector<std::string> all_rulebooks;

message_ptr new_message(int type, const std::string& rulebook = "DE-3.7");

// The message with all header values set, or null when one of them was refused.
message_ptr with_header(message_ptr msg);

using pairs = std::vector<tivex_keyvalue_t>;

// Adds what the message's type needs under every rulebook, then `more`, which
// takes precedence.
int add(const message_ptr& msg, const pairs& more = {});

// Adds these properties and no others.
int add_alone(const message_ptr& msg, pairs list);

// The properties of a list that is written key=value, separated by blank,
// semicolon, blank.
std::vector<std::pair<std::string, cell>> read_properties(const std::string& list);

// Calls a function as the test data name it: "rulebook", "setIBAN" and so on,
// "add" (alone), "add+" (see above), both with a list as above, or "toXML".
int call(const message_ptr& msg, const std::string& function, const char* value);

std::string error_of(const message_ptr& msg);

// The document, or an empty text when there is none.
std::string document_of(const message_ptr& msg);
