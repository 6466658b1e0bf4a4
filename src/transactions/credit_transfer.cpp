#include "transactions/credit_transfer.h"

#include "transactions/add_transaction.h"
#include "transactions/key_rules.h"

namespace tivex {

namespace {

constexpr auto shared_keys =
    shared_key_rules<ct_transaction>("Invalid character '%c' in creditor name");

constexpr std::array<key_rule<ct_transaction>, 1> own_keys = {{
    {"purp",
     &ct_transaction::purpose,
     accept_text,
     {4, 4, "Invalid purpose (must be 4 characters)"}},
}};

bool ignore_unknown(message& /*msg*/, const char* /*key*/) { return true; }

bool complete(message& msg, const ct_transaction& added) {
  return has_account(msg, added) && has_amount(msg, added.amount) && has_one_reference(msg, added);
}

constexpr auto keys = joined(joined(shared_keys, own_keys), further_key_rules<ct_transaction>());

constexpr list_rules<ct_transaction, keys.size()> rules = {key_index(keys), ignore_unknown,
                                                           complete};

}  // namespace

bool cti_add(message& msg, const tivex_keyvalue_t* list) {
  if (msg.type != TIVEX_CREDIT_TRANSFER) return msg.fail("No CTI message");
  return add_transaction(msg, list, rules);
}

}  // namespace tivex
