#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "payments/table_facts.h"
#include "warnings/date_sums.h"

namespace tivex_program {

struct document_form {
  std::string rulebook;
  bool strict;  // whether the schema accepts the document
};

// What a document says about itself in its group header, its payment blocks and its
// namespace, and what is known of its form.
struct document_summary {
  std::size_t transactions;
  std::string sum;  // of euros
  std::size_t payment_blocks;
  std::string rulebook;
  std::string message;
  std::string schema;  // what it meets, empty when that is not known
  date_sums sums = {};
  std::size_t transliterated = 0;  // values
  std::size_t warnings = 0;
  bool is_written = true;
};

document_summary summarize(std::string_view document, const document_form& form);

// The summary with the document's file, empty for standard output: printable lines for the
// user, and a line of JSON with how the table was read.
std::string text_of(const document_summary& summary, const std::string& file);
std::string json_of(const table_facts& table, const document_summary& summary,
                    const std::string& file);

}  // namespace tivex_program
