// The strict mode: messages that would become documents which their schema refuses
// are refused before anything is written.
#pragma once

#include "transactions/credit_transfer.h"
#include "transactions/direct_debit.h"
#include "xml/document_frame.h"
#include "xml/payment_blocks.h"

namespace tivex {

// Whether the schema accepts what the message's values become in a document of the
// form: header, then transactions in the order of adding, each by a table of its
// keys, then sums. The first value that it does not accept stands in the message's error
// text. The blocks are those of the message; none has been taken yet.
bool schema_accepts(message& msg, const document_form& form,
                    const payment_blocks<ct_transaction>& blocks);
bool schema_accepts(message& msg, const document_form& form,
                    const payment_blocks<dd_transaction>& blocks);

}  // namespace tivex
