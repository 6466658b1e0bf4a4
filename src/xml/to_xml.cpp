#include "core/message.h"
#include "platform/float_traps.h"
#include "tivex.h"
#include "xml/credit_transfer_document.h"
#include "xml/direct_debit_document.h"
#include "xml/document_stamp.h"
#include "xml/xml_buffer.h"

namespace tivex {

namespace {

bool write_document(message& msg, xml_buffer_t& out) {
  if (msg.type == TIVEX_CREDIT_TRANSFER) return cti_toXML(msg, out);
  if (msg.type == TIVEX_DIRECT_DEBIT) return ddi_toXML(msg, out);
  return false;
}

}  // namespace

}  // namespace tivex

char* tivex_toXML(tivex_t* msg) {
  if (msg == nullptr) return nullptr;
  const tivex::platform::float_traps_off traps_off;
  const tivex::xml_buffer_ptr out(tivex::xml_buffer_new());
  if (!out) return nullptr;
  if (!tivex::ensure_date(*msg)) {
    msg->fail("malloc() failed");
    return nullptr;
  }
  if (!tivex::xml_buffer_append(*out, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n") ||
      !tivex::write_document(*msg, *out)) {
    return nullptr;
  }
  return tivex::xml_buffer_take(*out);
}
