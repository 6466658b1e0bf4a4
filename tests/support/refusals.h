// Values that tivex_add refuses.
#pragma once

#include <span>
#include <string>

#include "support/messages.h"

struct refused_value {
  const char* key;
  const char* value;
  const char* error;
  const char* rulebook = "DE-3.5";
};

// Adds `needed` to a message, and then again with each value behind it: that must
// fail with the error and leave the message as it was.
inline void expect_refusals(int type, const pairs& needed, std::span<const refused_value> refused) {
  for (const refused_value& r : refused) {
    const message_ptr msg = new_message(type, r.rulebook);
    ASSERT_EQ(add(msg, needed), 1) << error_of(msg);
    const std::string what = std::string(r.key) + "=" + (r.value ? r.value : "null");
    EXPECT_EQ(add(msg, with(needed, {{r.key, r.value}})), 0) << what;
    EXPECT_EQ(error_of(msg), r.error) << what;
    EXPECT_EQ(msg->tx_count, 1u);
    EXPECT_EQ(msg->control_sum, 12.5);
    EXPECT_EQ(msg->first, msg->last);
  }
}

// A text of so many letters, at most 200.
inline const char* letters(std::size_t count) {
  static const std::string longest(200, 'x');
  return longest.c_str() + longest.size() - count;
}
