// The message object that stands behind tivex_t.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

#include "core/bounded_format.h"
#include "core/owned_text.h"
#include "platform/platform.h"
#include "tivex.h"

namespace tivex {

struct transaction;

// A value of a transaction that was added although memory did not suffice for its copy.
struct lost_value {
  std::uint32_t transaction = 0;  // counted from 1; 0 when none was lost
  const char* key = nullptr;
};

struct message {
  std::int32_t type = 0;
  const char* error = nullptr;  // a constant text or error_text; never cleared
  owned_text iban;
  owned_text bic;
  owned_text name;
  owned_text creditor_id;
  owned_text date;
  owned_text message_id;
  char error_text[256] = {};
  std::uint32_t tx_count = 0;
  double control_sum = 0.0;
  std::int32_t local_instrument = TIVEX_DD_CORE;
  std::uint8_t batch_booking = 1;
  transaction* first = nullptr;  // records of the kind that `type` names, linked by `next`
  transaction* last = nullptr;
  std::uint8_t strict = 0;   // 1: only documents that their schema accepts are written
  bool copy_failed = false;  // of a value, in the adding that runs
  lost_value lost;           // the first one
  std::int32_t transfer_type = TIVEX_CT_STANDARD;
  char category_purpose[5] = {};  // empty: none

  // Both note the reason of a failure and give back the result of one.
  bool fail(const char* reason);
  template <class... values>
  bool fail_with(const char* format, values... shown);

  // Stores a copy of a transaction's value. One that cannot be allocated leaves the
  // field unset, which is no fault of the value and refuses nothing by itself.
  void keep_copy(owned_text& field, std::string_view value) {
    if (!field.assign(value)) copy_failed = true;
  }
};

template <class... values>
bool message::fail_with(const char* format, values... shown) {
  // A host may hand in the text that it just read from this very buffer.
  char text[sizeof error_text];
  bounded_format(text, sizeof text, format, shown...);
  std::memcpy(error_text, text, sizeof text);
  platform::wipe(text, sizeof text);
  return fail(error_text);
}

// Whether the selected rulebook has instant payments. If not, the message says so.
bool admits_instant_payments(message& msg);

}  // namespace tivex

struct tivex_message final : tivex::message {};
