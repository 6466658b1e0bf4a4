#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// As much of a file's start as is looked at.
inline constexpr std::size_t looked_at = 4096;

// Whether a text is XML: "<" comes first, behind a byte order mark and white space.
bool begins_as_xml(std::string_view head);

bool is_html(std::string_view head);

// What a file without statements looks like, such as "a PDF document", empty when it looks
// like nothing in particular.
std::string kind_of_file(std::string_view head);

}  // namespace tivex_program
