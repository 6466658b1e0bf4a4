#include "core/message.h"

#include "core/rulebook.h"
#include "core/wiped_object.h"
#include "transactions/credit_transfer.h"
#include "transactions/direct_debit.h"

namespace tivex {

bool message::fail(const char* reason) {
  error = reason;
  return false;
}

}  // namespace tivex

tivex_t* tivex_new(int type) {
  tivex::select_default_rulebook();
  if (type != TIVEX_DIRECT_DEBIT && type != TIVEX_CREDIT_TRANSFER) return nullptr;
  auto msg = tivex::make_wiped<tivex_message>();
  if (msg) msg->type = type;
  return msg.release();
}

void tivex_free(tivex_t* msg) {
  if (msg == nullptr) return;
  if (msg->type == TIVEX_CREDIT_TRANSFER) {
    tivex::release_transactions<tivex::ct_transaction>(*msg);
  } else {
    tivex::release_transactions<tivex::dd_transaction>(*msg);
  }
  tivex::destroy_wiped(msg);
}

const char* tivex_getError(const tivex_t* msg) {
  return msg != nullptr ? msg->error : "Invalid tivex_t handle (NULL)";
}
