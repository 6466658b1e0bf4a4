// The elements of a document that are known, by where they stand.
#pragma once

#include <cstddef>
#include <cstdint>

#include "statements/camt/xml_reader.h"

namespace tivex {

// What stands inside of an element. Elements with the same content have the same one; what
// has no known content has none.
enum class content : std::uint8_t {
  none,
  file,
  document,
  statement_message,
  report_message,
  notification_message,
  header,
  page,
  statement,
  account,
  account_id,
  other_account_id,
  balance,
  balance_type,
  balance_code,
  date,
  entry,
  status,
  code,
  proprietary_code,
  domain_code,
  family_code,
  charges,
  charges_record,
  entry_details,
  batch,
  transaction,
  references,
  amount_details,
  instructed_amount,
  stated_amount,
  parties,
  party,
  inner_party,
  party_id,
  person_id,
  organisation_id,
  person_other_id,
  organisation_other_id,
  ultimate_party,
  inner_ultimate_party,
  agents,
  agent,
  institution,
  member_id,
  purpose,
  remittance,
  structured_remittance,
  creditor_reference,
  return_information,
  return_reason,
};

// What is kept of an element's text.
enum class keep : std::uint8_t { nothing, text, money, list };

// What happens at the beginning or the end of an element.
enum class event : std::uint8_t { none, message, statement, balance, entry, transaction, returned };

struct element_row {
  const char* name;
  std::uint64_t head;  // of the name
  // Where the text goes, and where the texts of its content go: bytes behind the place of the
  // element around it.
  std::uint16_t offset;
  std::uint16_t content_offset;
  content within;
  content inside;
  keep kept;
  event happens;
  std::uint8_t length;  // of the name
};

// Null for an element that is not known there.
const element_row* find_element(content within, const element_name& name);

}  // namespace tivex
