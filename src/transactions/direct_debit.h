#pragma once

#include <cstdint>

#include "transactions/transaction.h"

namespace tivex {

enum sequence : std::int32_t {
  SEQUENCE_MISSING = 0,
  SEQUENCE_FRST = 1,  // first of a series
  SEQUENCE_RCUR = 2,  // recurrent
  SEQUENCE_OOFF = 3,  // one-off
  SEQUENCE_FNAL = 4,  // final
};

// One collection from a debtor in favour of the message's own account.
struct dd_transaction : transaction {
  std::int32_t sequence_type = SEQUENCE_MISSING;
  double amount = 0.0;  // euro, whole cents
  owned_text date;      // when unset, the message's date applies
  owned_text mandate_id;
  owned_text mandate_date;
  owned_text old_mandate_id;  // of an amended mandate, as is the next
  owned_text old_iban;
  std::uint8_t smnda = 0;  // 1: the debtor has a new account under the same mandate
  owned_text remittance;
  dd_transaction* next = nullptr;
  owned_text creditor_reference;
  owned_text ultimate_debtor;  // on whose behalf, as is the next
  owned_text ultimate_creditor;
  owned_text instruction_id;
};

// Adds a direct debit as tivex_add describes.
bool ddi_add(message& msg, const tivex_keyvalue_t* list);

}  // namespace tivex
