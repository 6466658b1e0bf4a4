#include "core/message.h"
#include "platform/float_traps.h"
#include "tivex.h"
#include "transactions/credit_transfer.h"
#include "transactions/direct_debit.h"

int tivex_add(tivex_t* msg, const tivex_keyvalue_t* list) {
  if (msg == nullptr) return 0;
  const tivex::platform::float_traps_off traps_off;
  if (msg->type == TIVEX_CREDIT_TRANSFER) return tivex::cti_add(*msg, list);
  if (msg->type == TIVEX_DIRECT_DEBIT) return tivex::ddi_add(*msg, list);
  return 0;
}
