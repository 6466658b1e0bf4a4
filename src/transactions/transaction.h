// What credit transfer and direct debit records have in common, and the list in
// which a message holds them.
#pragma once

#include <cstddef>

#include "core/message.h"
#include "core/owned_text.h"
#include "core/wiped_object.h"

namespace tivex {

// The other side of a payment. A text that the host has not given is unset; the
// others stand as given, the BIC in upper case.
struct transaction {
  owned_text end_to_end_id;
  owned_text name;
  owned_text iban;
  owned_text bic;
  owned_text addr_country;
  owned_text addr_line1;
  owned_text addr_line2;
  owned_text addr_department;
  owned_text addr_sub_department;
  owned_text addr_street;
  owned_text addr_building_number;
  owned_text addr_building_name;
  owned_text addr_floor;
  owned_text addr_post_box;
  owned_text addr_room;
  owned_text addr_post_code;
  owned_text addr_town;
  owned_text addr_town_location;
  owned_text addr_district;
  owned_text addr_country_subdivision;
};

// The first record of a message whose records are of the kind named.
template <class record>
record* first_transaction(const message& msg) {
  return static_cast<record*>(msg.first);
}

// Says that a record will be read soon. Its texts mostly stand right behind it, because
// they were allocated next. Nothing depends on it but speed.
template <class record>
void expect_reading(const record& tx) {
#if defined(__GNUC__)
  constexpr std::size_t line = 64;
  constexpr std::size_t typical_texts = 192;
  const char* const start = reinterpret_cast<const char*>(&tx);
  for (std::size_t at = 0; at < sizeof tx + typical_texts; at += line)
    __builtin_prefetch(start + at);
#endif
}

// Puts a record behind the others, which the message then owns.
template <class record>
void link_transaction(message& msg, wiped_ptr<record> added) {
  ++msg.tx_count;
  msg.control_sum += added->amount;
  record* const linked = added.release();
  if (msg.last != nullptr) {
    static_cast<record*>(msg.last)->next = linked;
  } else {
    msg.first = linked;
  }
  msg.last = linked;
}

template <class record>
void release_transactions(message& msg) {
  for (auto* next = first_transaction<record>(msg); next != nullptr;) {
    record* const released = next;
    next = released->next;
    destroy_wiped(released);
  }
  msg.first = nullptr;
  msg.last = nullptr;
}

}  // namespace tivex
