#pragma once

#include <string_view>

namespace tivex {

struct xml_declaration {
  std::string_view encoding;  // empty when none is stated
  char* end;                  // behind the declaration; where the fault is for a bad one
  bool is_good;
};

// The declaration at a text's start; the start itself is the end where there is none. A NUL
// follows the text.
xml_declaration read_declaration(char* text);

}  // namespace tivex
