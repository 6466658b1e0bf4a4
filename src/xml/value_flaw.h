// What can be wrong with a value that a schema looks at.
#pragma once

#include <cstddef>
#include <cstdint>

#include "xml/schema.h"

namespace tivex {

enum class flaw {
  none,
  missing,
  lost,              // when it was to be copied
  no_date,           // of the calendar
  character,         // that the schema does not admit
  ill_formed,        // a character that no XML document admits in this place
  no_creditor_form,  // of creditor identifiers
  too_high,          // above 999999999.99
  too_many_digits,   // for the schema's numbers
  sum_too_high,      // above 999999999999.99
  too_many,          // more than 999,999 transactions
  unlisted,          // a purpose that the schema does not list
  cor1,              // as the local instrument
  // By the rules that hold for every SEPA file.
  not_given,
  slash_at_start,
  slash_at_end,
  double_slash,
  blanks_only,
};

struct value_flaw {
  flaw kind = flaw::none;
  char byte = '\0';  // the first one of a character

  explicit operator bool() const { return kind != flaw::none; }
};

// Each looks at a value as the document would hold it: a text that is written
// escaped, and those that are written as they stand.
using value_test = value_flaw(const char* value, const document_schema& schema);
value_test escaped_text_flaw;
value_test plain_text_flaw;
value_test identifier_flaw;
value_test mandate_reference_flaw;
value_test creditor_identifier_flaw;
value_test date_flaw;
value_test purpose_flaw;
// Of a name or text whose characters have been checked for good when it was added.
value_test blank_text_flaw;

// Whether an identifier, all of whose characters are admitted, keeps to the rules that
// hold for every SEPA file.
value_flaw sepa_identifier_flaw(const char* value);

// An amount in cents, and a sum of them.
value_flaw amount_flaw(std::int64_t cents, const document_schema& schema);
value_flaw sum_flaw(std::int64_t cents);
// The same of what a document states, and the number of transactions.
value_flaw stated_sum_flaw(std::int64_t cents, const document_schema& schema);
value_flaw count_flaw(std::uint32_t count, const document_schema& schema);

// Says what is wrong, and by whose rules: the version's, XML's or SEPA's. Nothing is written
// where nothing is wrong.
void describe(char* out, std::size_t size, value_flaw found, const char* version);

}  // namespace tivex
