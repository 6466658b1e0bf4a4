#pragma once

#include "transactions/transaction.h"

namespace tivex {

// One payment from the message's own account to a creditor.
struct ct_transaction : transaction {
  owned_text remittance;
  owned_text purpose;
  double amount = 0.0;  // euro, whole cents
  owned_text date;      // when unset, the message's date applies
  ct_transaction* next = nullptr;
  owned_text creditor_reference;
  owned_text ultimate_debtor;  // on whose behalf, as is the next
  owned_text ultimate_creditor;
  owned_text instruction_id;
};

// Adds a credit transfer as tivex_add describes.
bool cti_add(message& msg, const tivex_keyvalue_t* list);

}  // namespace tivex
