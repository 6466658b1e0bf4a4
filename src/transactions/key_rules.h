// The keys through which a host describes a transaction: a row each.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "transactions/amount.h"
#include "transactions/charset.h"
#include "transactions/field_checks.h"

namespace tivex {

// Most keys store a checked text; the others have a function of their own. Further keys
// are known where the rulebook admits them.
template <class record>
struct key_rule {
  std::string_view key;
  owned_text record::*field = nullptr;
  field_check* check = nullptr;
  text_rule rule = {};
  bool (*accept_value)(message& msg, record& target, const char* value) = nullptr;
  bool is_further = false;

  bool accept(message& msg, record& target, const char* value) const {
    return check != nullptr ? check(msg, rule, value, target.*field)
                            : accept_value(msg, target, value);
  }
};

template <class record>
bool accept_amount(message& msg, record& target, const char* value) {
  const char* const fault = amount_rule(value, target.amount);
  return fault == nullptr || msg.fail(fault);
}

// The keys that credit transfers and direct debits share. `name_error` refuses a
// character in the name of the other side.
template <class record>
constexpr std::array<key_rule<record>, 10> shared_key_rules(const char* name_error) {
  return {{
      {"name",
       &record::name,
       accept_text,
       {1, 70, "Invalid name (must be 1-70 characters)", CHARSET_TEXT, name_error}},
      {"iban", &record::iban, accept_iban},
      {"bic", &record::bic, accept_bic},
      {"addrCC", &record::addr_country, accept_country, {2, 2, "Invalid country code"}},
      {"addrLine1",
       &record::addr_line1,
       accept_address_line,
       {1, 70, "Invalid address line 1 (must be 1-70 chars)", CHARSET_TEXT,
        "Invalid character '%c' in address line 1"}},
      {"addrLine2",
       &record::addr_line2,
       accept_address_line,
       {1, 70, "Invalid address line 2 (must be 1-70 chars)", CHARSET_TEXT,
        "Invalid character '%c' in address line 2"}},
      {"ref",
       &record::remittance,
       accept_text,
       {0, 140, "Invalid unstructured remittance information (must be 0-140 characters)",
        CHARSET_TEXT, "Invalid character '%c' in unstructured remittance information"}},
      {.key = "amount", .accept_value = accept_amount<record>},
      {"date", &record::date, accept_text, {10, 10, "Invalid execution date (format: yyyy-mm-dd)"}},
      {"id",
       &record::end_to_end_id,
       accept_text,
       {1, 35, "Invalid end-to-end ID (must be 1-35 characters)", CHARSET_PLAIN,
        "Invalid character '%c' in end-to-end ID"}},
  }};
}

// The further keys, which both share as well.
template <class record>
constexpr std::array<key_rule<record>, 4> further_key_rules() {
  return {{
      {.key = "cref",
       .field = &record::creditor_reference,
       .check = accept_creditor_reference,
       .is_further = true},
      {.key = "ultmtDbtr",
       .field = &record::ultimate_debtor,
       .check = accept_text,
       .rule = {1, 70, "Invalid ultimate debtor (must be 1-70 characters)", CHARSET_TEXT,
                "Invalid character '%c' in ultimate debtor"},
       .is_further = true},
      {.key = "ultmtCdtr",
       .field = &record::ultimate_creditor,
       .check = accept_text,
       .rule = {1, 70, "Invalid ultimate creditor (must be 1-70 characters)", CHARSET_TEXT,
                "Invalid character '%c' in ultimate creditor"},
       .is_further = true},
      {.key = "instrId",
       .field = &record::instruction_id,
       .check = accept_text,
       .rule = {1, 35, "Invalid instruction ID (must be 1-35 characters)", CHARSET_PLAIN,
                "Invalid character '%c' in instruction ID"},
       .is_further = true},
  }};
}

// The rows of both tables.
template <class row, std::size_t first, std::size_t second>
constexpr std::array<row, first + second> joined(const std::array<row, first>& left,
                                                 const std::array<row, second>& right) {
  std::array<row, first + second> rows = {};
  std::copy(right.begin(), right.end(), std::copy(left.begin(), left.end(), rows.begin()));
  return rows;
}

}  // namespace tivex
