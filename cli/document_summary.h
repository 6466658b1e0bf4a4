#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tivex_program {

// Returns what a document says about itself in its group header, its payment
// blocks and its namespace, as lines for the user.
std::vector<std::string> document_summary(std::string_view document, const std::string& rulebook,
                                          const std::string& file);

}  // namespace tivex_program
