// What both documents are built from: the elements around the payments.
#pragma once

#include <cstdint>
#include <ctime>

#include "core/message.h"
#include "xml/document_writer.h"
#include "xml/payment_blocks.h"
#include "xml/schema.h"

namespace tivex {

// What a document is called, what it says of itself, and when it is written.
struct document_form {
  const document_schema& schema;
  const char* version;     // of the schema, for this kind of document
  const char* initiation;  // the element below Document
  std::uint64_t typical_transaction_bytes;
  std::time_t moment;
  bool strict;                             // only what the schema accepts is written
  const char* local_instrument = nullptr;  // null: none is written
};

// Notes that the selected rulebook has no schema, or that none is selected.
bool fail_without_schema(message& msg);

// The sum in cents that a document states: the prescribed one, in the strict mode
// the exact one where the schema has room for its digits.
std::int64_t stated_cents(bool strict, const payment_totals& totals);

// The attributes of the Document element.
class document_attributes {
 public:
  explicit document_attributes(const document_form& form);
  const char* c_str() const { return text_; }

 private:
  char text_[320];
};

void write_group_header(document_writer& out, const message& msg, const payment_totals& totals,
                        std::time_t moment);

// The elements that payment blocks begin with. `method` is the payment method;
// blocks are numbered from 1.
void write_payment_start(document_writer& out, const message& msg, std::string_view method,
                         int number, const payment_totals& totals);

void write_service_level(document_writer& out);

// The code of an element that holds nothing else.
inline void write_code(document_writer& out, std::string_view element_name, const char* code) {
  const element coded(out, element_name);
  out.value("Cd", code);
}

// What the payments are for, as the message tells.
void write_category_purpose(document_writer& out, const message& msg,
                            const document_schema& schema);

// An amount of a transaction in euro.
void write_amount(document_writer& out, double amount);

// How the payments of a kind of document are written; blocks are numbered from 1.
template <class record>
struct payment_writer {
  void (*header)(document_writer& out, const message& msg, const document_form& form,
                 const payment_block<record>& block, int number);
  void (*transaction)(document_writer& out, const document_schema& schema, const record& tx);
};

// Whether a message becomes only what the schema accepts.
inline bool is_strict(const message& msg, const document_schema& schema) {
  return msg.strict != 0 || schema.always_strict;
}

// Writes a whole document. False, with the reason in the message, when something
// did not fit.
template <class record>
bool write_initiation(message& msg, xml_buffer_t& out, const document_form& form,
                      const payment_blocks<record>& blocks, const payment_writer<record>& write) {
  xml_buffer_expect(out, msg.tx_count * form.typical_transaction_bytes);
  document_writer writer(out, form.strict);
  {
    const document_attributes attributes(form);
    const element document(writer, "Document", attributes.c_str());
    const element initiation(writer, form.initiation);
    write_group_header(writer, msg, blocks.totals(), form.moment);
    blocks.for_each([&](const payment_block<record>& block, int number) {
      const element payment(writer, "PmtInf");
      write.header(writer, msg, form, block, number);
      // Those of a date may lie anywhere in memory.
      constexpr std::size_t ahead = 8;
      const std::size_t count = block.transactions.size();
      for (std::size_t index = 0; index < count; ++index) {
        if (index + ahead < count) expect_reading(*block.transactions[index + ahead].tx);
        write.transaction(writer, form.schema, *block.transactions[index].tx);
      }
    });
  }
  return writer.succeeded(msg);
}

}  // namespace tivex
