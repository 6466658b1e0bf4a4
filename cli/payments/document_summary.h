#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tivex_program {

struct document_form {
  std::string rulebook;
  bool strict;  // whether the schema accepts the document
};

// Returns what a document says about itself in its group header, its payment
// blocks and its namespace, and what is known of its form, as lines for the user.
std::vector<std::string> document_summary(std::string_view document, const document_form& form,
                                          const std::string& file);

}  // namespace tivex_program
