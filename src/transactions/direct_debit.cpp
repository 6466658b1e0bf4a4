#include "transactions/direct_debit.h"

#include <string_view>

#include "transactions/add_transaction.h"
#include "transactions/eea.h"
#include "transactions/key_rules.h"

namespace tivex {

namespace {

struct sequence_name {
  const char* value;
  sequence type;
};

constexpr sequence_name sequence_names[] = {{"frst", SEQUENCE_FRST},
                                            {"rcur", SEQUENCE_RCUR},
                                            {"ooff", SEQUENCE_OOFF},
                                            {"fnal", SEQUENCE_FNAL}};

bool accept_sequence(message& msg, dd_transaction& target, const char* value) {
  for (const sequence_name& name : sequence_names) {
    if (value == nullptr || !equal_ignoring_case(value, name.value)) continue;
    target.sequence_type = name.type;
    return true;
  }
  return msg.fail("Invalid/unknown sequence type");
}

bool accept_smnda(message& msg, dd_transaction& target, const char* value) {
  if (value == nullptr || std::string_view(value) != "1") {
    return msg.fail_with("Invalid value '%.255s' for SMNDA flag",
                         value != nullptr ? value : "(null)");
  }
  target.smnda = 1;
  return true;
}

bool accept_mandate_reference(message& msg, const text_rule& rule, const char* value,
                              owned_text& field) {
  text_rule wider = rule;
  if (current_rules().blank_in_mandate_reference) wider.level = CHARSET_PLAIN;
  return accept_text(msg, wider, value, field);
}

// Where addresses are structured this key has been taken before.
bool refuse_structured_address(message& msg, dd_transaction& /*target*/, const char* /*value*/) {
  return msg.fail("selected SEPA rulebook does not support structured address data");
}

constexpr auto shared_keys =
    shared_key_rules<dd_transaction>("Invalid character '%c' in debtor name");

constexpr std::array<key_rule<dd_transaction>, 7> own_keys = {{
    {.key = "addrDept", .accept_value = refuse_structured_address},
    {.key = "seq", .accept_value = accept_sequence},
    {"mref",
     &dd_transaction::mandate_id,
     accept_mandate_reference,
     {1, 35, "Invalid mandate reference (must be 1-35 characters)", CHARSET_REFERENCE,
      "Invalid character '%c' in mandate reference"}},
    {"mdate",
     &dd_transaction::mandate_date,
     accept_text,
     {10, 10, "Invalid mandate signature date (format: yyyy-mm-dd)"}},
    {"old_mref",
     &dd_transaction::old_mandate_id,
     accept_text,
     {1, 35, "Invalid old mandate reference (must be 1-35 characters)", CHARSET_REFERENCE,
      "Invalid character '%c' in old mandate reference"}},
    {"old_iban", &dd_transaction::old_iban, accept_iban},
    {.key = "smnda", .accept_value = accept_smnda},
}};

bool refuse_unknown(message& msg, const char* key) {
  return msg.fail_with("Invalid transaction property '%.255s'", key);
}

// Of the debtor's bank.
bool lies_outside_eea(const dd_transaction& added) {
  if (added.bic) return bic_outside_eea(added.bic.c_str()) == 1;
  return current_rules().bank_by_iban && country_outside_eea(added.iban.c_str());
}

// A debtor whose bank lies outside the European Economic Area must be told by
// address.
bool has_address(message& msg, const dd_transaction& added) {
  if (!lies_outside_eea(added)) return true;
  const rulebook_rules& rules = current_rules();
  if (rules.address_line_outside_eea && !added.addr_line1 && !added.addr_line2) {
    return msg.fail("Address required for BICs outside EEA");
  }
  if (rules.structured_address && (!added.addr_town || !added.addr_country)) {
    return msg.fail("Structured address required for BICs outside EEA (at least town and country)");
  }
  return true;
}

bool has_sequence(message& msg, const dd_transaction& added) {
  return added.sequence_type != SEQUENCE_MISSING || msg.fail("Sequence type missing");
}

bool complete(message& msg, const dd_transaction& added) {
  return has_account(msg, added) && has_address(msg, added) && has_sequence(msg, added) &&
         has_amount(msg, added.amount) && has_one_reference(msg, added);
}

constexpr auto keys = joined(joined(shared_keys, own_keys), further_key_rules<dd_transaction>());

constexpr list_rules<dd_transaction, keys.size()> rules = {key_index(keys), refuse_unknown,
                                                           complete};

}  // namespace

bool ddi_add(message& msg, const tivex_keyvalue_t* list) {
  return add_transaction(msg, list, rules);
}

}  // namespace tivex
