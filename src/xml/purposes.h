// The purposes that a schema lists.
#pragma once

namespace tivex {

// What the schema with the list adds to its version's name.
inline constexpr const char* purpose_list = "at.004";

struct purpose_code {
  char code[5];
};

bool is_listed_purpose(const char* code);

}  // namespace tivex
