// The header setters: each checks its value completely before it changes the
// message.

#include <algorithm>
#include <cstring>
#include <string_view>

#include "core/creditor_identifier.h"
#include "core/message.h"
#include "core/rulebook.h"
#include "tivex.h"
#include "transactions/charset.h"
#include "transactions/date_text.h"
#include "validation/ascii.h"
#include "validation/bic_text.h"
#include "validation/format_check.h"
#include "validation/iban.h"

namespace tivex {

namespace {

bool store(message& msg, owned_text& field, const char* value,
           const char* exhausted = "strdup() failed") {
  return field.assign(value) || msg.fail(exhausted);
}

bool set_iban(message& msg, const char* iban) {
  const char* reason = nullptr;
  if (!iban_validate(iban, &reason)) {
    return msg.fail_with("%s (%.255s)", reason, iban != nullptr ? iban : "(null)");
  }
  return store(msg, msg.iban, iban);
}

bool set_bic(message& msg, const char* bic) {
  bic_text upper;
  if (!upper.set(bic)) return msg.fail("tivex_setBIC: invalid BIC");
  if (!format_check(FORMAT_BIC, upper.c_str())) {
    return msg.fail("tivex_setBIC: invalid BIC format");
  }
  return store(msg, msg.bic, upper.c_str(), "tivex_setBIC: strdup() failed");
}

bool set_name(message& msg, const char* name) {
  if (name == nullptr || *name == '\0') return msg.fail("tivex_setAccount: Name too short");
  if (std::strlen(name) > 70) return msg.fail("tivex_setAccount: Name too long");
  char offending = '\0';
  if (!charset_check(name, &offending, CHARSET_TEXT)) {
    return msg.fail_with("tivex_setName: invalid character '%c' in name", offending);
  }
  return store(msg, msg.name, name, "tivex_setName: strdup() failed");
}

bool set_creditor_identifier(message& msg, const char* id) {
  if (id == nullptr || std::strlen(id) < 7) return msg.fail("Creditor Identifier too short");
  if (std::strlen(id) > 35) return msg.fail("Creditor Identifier too long");
  if (const char* const fault = creditor_identifier_fault(id)) return msg.fail(fault);
  return store(msg, msg.creditor_id, id);
}

bool set_date(message& msg, const char* date) {
  if (!has_date_length(date)) return msg.fail("Invalid date");
  if (!scan_date(date)) return msg.fail("Invalid date format");
  return store(msg, msg.date, date);
}

bool set_local_instrument(message& msg, int code) {
  if (msg.type != TIVEX_DIRECT_DEBIT) return msg.fail("Not a direct debit message");
  if (code != TIVEX_DD_CORE && code != TIVEX_DD_COR1 && code != TIVEX_DD_B2B) {
    return msg.fail("Unknown/unsupported LocalInstrumentCode (setDDType)");
  }
  if (code == TIVEX_DD_COR1 && !current_rules().cor1_allowed) {
    return msg.fail("COR1 is not allowed with selected SEPA rulebook");
  }
  msg.local_instrument = code;
  return true;
}

bool set_transfer_type(message& msg, int code) {
  if (msg.type != TIVEX_CREDIT_TRANSFER) return msg.fail("Not a credit transfer message");
  if (code != TIVEX_CT_STANDARD && code != TIVEX_CT_INSTANT) {
    return msg.fail("Unknown/unsupported credit transfer type");
  }
  if (code == TIVEX_CT_INSTANT && !admits_instant_payments(msg)) return false;
  msg.transfer_type = code;
  return true;
}

// Null takes the code away.
bool set_category_purpose(message& msg, const char* code) {
  const std::string_view text = code != nullptr ? code : "";
  const auto admitted = [](char c) { return is_upper(c) || is_digit(c); };
  if (code != nullptr && (text.size() != 4 || !std::ranges::all_of(text, admitted))) {
    return msg.fail("Invalid category purpose");
  }
  *std::ranges::copy(text, msg.category_purpose).out = '\0';
  return true;
}

bool set_batch_booking(message& msg, unsigned char mode) {
  if (mode > 1) return msg.fail("Invalid BatchBooking mode (only 0 or 1 allowed)");
  msg.batch_booking = mode;
  return true;
}

bool set_strict(message& msg, unsigned char mode) {
  if (mode > 1) return msg.fail("Invalid strict mode (only 0 or 1 allowed)");
  msg.strict = mode;
  return true;
}

bool set_message_id(message& msg, const char* id) {
  // The set is the same under every rulebook.
  const auto admitted = [](const char* text) {
    while (is_reference_character(*text) || *text == ' ') ++text;
    return *text == '\0';
  };
  if (id == nullptr || *id == '\0' || std::strlen(id) > 35 || !admitted(id)) {
    return msg.fail("Invalid message id");
  }
  return store(msg, msg.message_id, id);
}

}  // namespace

bool admits_instant_payments(message& msg) {
  return current_rules().further_keys ||
         msg.fail("Instant payments are not allowed with selected SEPA rulebook");
}

}  // namespace tivex

int tivex_setIBAN(tivex_t* msg, const char* iban) {
  return msg != nullptr && tivex::set_iban(*msg, iban);
}

int tivex_setBIC(tivex_t* msg, const char* bic) {
  return msg != nullptr && tivex::set_bic(*msg, bic);
}

int tivex_setName(tivex_t* msg, const char* name) {
  return msg != nullptr && tivex::set_name(*msg, name);
}

int tivex_setCreditorIdentifier(tivex_t* msg, const char* id) {
  return msg != nullptr && tivex::set_creditor_identifier(*msg, id);
}

int tivex_setDate(tivex_t* msg, const char* date) {
  return msg != nullptr && tivex::set_date(*msg, date);
}

int tivex_setDDType(tivex_t* msg, int code) {
  return msg != nullptr && tivex::set_local_instrument(*msg, code);
}

int tivex_setCTType(tivex_t* msg, int code) {
  return msg != nullptr && tivex::set_transfer_type(*msg, code);
}

int tivex_setCategoryPurpose(tivex_t* msg, const char* code) {
  return msg != nullptr && tivex::set_category_purpose(*msg, code);
}

int tivex_setBatchBooking(tivex_t* msg, unsigned char mode) {
  return msg != nullptr && tivex::set_batch_booking(*msg, mode);
}

int tivex_setMessageId(tivex_t* msg, const char* id) {
  return msg != nullptr && tivex::set_message_id(*msg, id);
}

int tivex_setStrict(tivex_t* msg, unsigned char mode) {
  return msg != nullptr && tivex::set_strict(*msg, mode);
}
