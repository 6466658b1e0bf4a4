// The road of a key-value list into a message, the same for both kinds of
// transaction.
#pragma once

#include <utility>

#include "core/rulebook.h"
#include "transactions/address_fields.h"
#include "transactions/key_index.h"
#include "transactions/key_rules.h"
#include "transactions/transaction.h"

namespace tivex {

// What one kind of transaction makes of a list.
template <class record, std::size_t count>
struct list_rules {
  key_index<key_rule<record>, count> keys;
  // Decides on a key that is not among them.
  bool (*accept_unknown)(message& msg, const char* key);
  // Decides whether a record has what it needs.
  bool (*complete)(message& msg, const record& added);
};

// The part of a structured address with a key; null where there is none.
inline const field_row* find_address_field(const written_key& key) {
  return current_rules().structured_address ? structured_address_fields.find(key) : nullptr;
}

// The row of a key that the rulebook knows; null when there is none.
template <class record, std::size_t count>
[[gnu::always_inline]] inline const key_rule<record>* find_key(
    const written_key& key, const list_rules<record, count>& rules) {
  const key_rule<record>* const row = rules.keys.find(key);
  const bool unknown = row != nullptr && row->is_further && !current_rules().further_keys;
  return unknown ? nullptr : row;
}

template <class record, std::size_t count>
bool accept_entry(message& msg, record& target, const tivex_keyvalue_t& entry,
                  const list_rules<record, count>& rules) {
  const written_key key(entry.key);
  if (const field_row* const row = find_address_field(key)) {
    return field_table_set(msg, target, entry, *row);
  }
  if (const key_rule<record>* const row = find_key(key, rules)) {
    return row->accept(msg, target, entry.value);
  }
  return rules.accept_unknown(msg, entry.key);
}

// The key of a value in the list whose copy the record lacks; null when it lacks none.
template <class record, std::size_t count>
const char* find_lost_value(const record& added, const tivex_keyvalue_t* list,
                            const list_rules<record, count>& rules) {
  for (; list->key != nullptr; ++list) {
    const written_key key(list->key);
    if (const field_row* const part = find_address_field(key)) {
      if (!(added.*part->destination)) return part->key.data();
    } else if (const key_rule<record>* const row = find_key(key, rules)) {
      if (row->field != nullptr && !(added.*row->field)) return row->key.data();
    }
  }
  return nullptr;
}

// Builds a record from a list and links it to the message. At the first fault
// the message's transactions stay as they were, its error text tells the reason,
// and the result is false.
template <class record, std::size_t count>
bool add_transaction(message& msg, const tivex_keyvalue_t* list,
                     const list_rules<record, count>& rules) {
  if (list == nullptr) return msg.fail("No key-value list submitted");
  wiped_ptr<record> added = make_wiped<record>();
  if (!added) return msg.fail("Out of memory");
  msg.copy_failed = false;
  for (const tivex_keyvalue_t* entry = list; entry->key != nullptr; ++entry) {
    if (!accept_entry(msg, *added, *entry, rules)) return false;
  }
  if (!rules.complete(msg, *added)) return false;
  if (msg.copy_failed && msg.lost.transaction == 0) {
    // A later value of the same key may have been copied.
    const char* const key = find_lost_value(*added, list, rules);
    if (key != nullptr) msg.lost = {msg.tx_count + 1, key};
  }
  link_transaction(msg, std::move(added));
  return true;
}

// What both kinds ask of a record: its IBAN, and its BIC where the rulebook
// wants one.
inline bool has_account(message& msg, const transaction& added) {
  if (!added.iban) return msg.fail("IBAN missing");
  if (!added.bic && current_rules().bic_required) return msg.fail("BIC missing");
  return true;
}

inline bool has_amount(message& msg, double amount) {
  return amount != 0.0 || msg.fail("Amount missing");
}

// A creditor reference stands in place of the remittance information.
template <class record>
bool has_one_reference(message& msg, const record& added) {
  const bool has_text = added.remittance && *added.remittance.c_str() != '\0';
  return !has_text || !added.creditor_reference ||
         msg.fail("Creditor reference and remittance information exclude each other");
}

}  // namespace tivex
