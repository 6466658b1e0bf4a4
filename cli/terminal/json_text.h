#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

namespace tivex_program {

// The members stay in the order in which they are added.
using json_object = nlohmann::ordered_json;

// A text of any bytes: one that is no UTF-8 is made printable.
json_object json_text(std::string_view text);

// Null for an empty text.
json_object json_text_or_null(std::string_view text);

}  // namespace tivex_program
