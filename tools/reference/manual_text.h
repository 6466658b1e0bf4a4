// Text as troff takes it.
#pragma once

#include <string>
#include <string_view>

namespace tivex_reference {

// Escapes what troff would take for requests or other characters.
std::string manual_text(std::string_view text);

std::string bold(std::string_view text);
std::string italic(std::string_view text);

// Lines that stay as they are, indented.
std::string as_it_stands(std::string_view lines);

std::string section(std::string_view title);

// An entry of a list: what it is about, already as troff takes it, and what is said of it.
std::string entry(const std::string& subject, std::string_view text);

// The comment and the heading that a page begins with; volume is such as
// "User Commands".
std::string page_head(std::string_view made_from, std::string_view title, int volume_number,
                      std::string_view volume);

}  // namespace tivex_reference
