// What both documents begin with.
#pragma once

#include <ctime>

#include "core/message.h"
#include "xml/document_writer.h"
#include "xml/schema.h"

namespace tivex {

// The attributes of the Document element for a version of the schema.
class document_attributes {
 public:
  document_attributes(const document_schema& schema, const char* version);
  const char* c_str() const { return text_; }

 private:
  char text_[320];
};

void write_group_header(document_writer& out, const message& msg, std::time_t moment);

// The identifier of the payment block with a number, counted from 1.
void write_payment_id(document_writer& out, const message& msg, int number);

void write_batch_booking(document_writer& out, const message& msg);

// The number of transactions and the sum of their amounts.
void write_totals(document_writer& out, std::uint32_t count, double sum);

// An amount of a transaction in euro.
void write_amount(document_writer& out, double amount);

}  // namespace tivex
