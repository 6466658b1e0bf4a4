#include "xml/schema_check.h"

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstring>
#include <span>

#include "transactions/address_fields.h"
#include "transactions/eea.h"
#include "xml/value_flaw.h"

namespace tivex {

namespace {

// A flaw, and the key of the value that has it.
struct keyed_flaw {
  const char* key = nullptr;
  value_flaw found;
};

// What schemas look at in one value: the demand that makes it obligatory, and the test
// that it has to pass when it is there. Without a test its form has been checked for
// good when it was set or added; values of which no schema asks anything have no row.
// What is told by more than one value needs a function of its own.
template <class holder>
struct value_row {
  const char* key = nullptr;
  owned_text holder::*value = nullptr;
  std::uint32_t demanded_by = DEMAND_NOTHING;
  value_test* test = nullptr;
  keyed_flaw (*examine)(const holder& target, const document_schema& schema) = nullptr;

  keyed_flaw find_flaw(const holder& target, const document_schema& schema) const {
    if (examine != nullptr) return examine(target, schema);
    const owned_text& held = target.*value;
    if (!held) return {key, {schema.asks_for(demanded_by) ? flaw::missing : flaw::none}};
    return {key, test != nullptr ? test(held.c_str(), schema) : value_flaw{}};
  }
};

struct line_row {
  const char* key;
  owned_text transaction::*line;
};
constexpr line_row address_lines[] = {{"addrLine1", &transaction::addr_line1},
                                      {"addrLine2", &transaction::addr_line2}};

bool has_line(const transaction& tx) { return tx.addr_line1 || tx.addr_line2; }

// The characters of address lines have been looked at when they were added.
keyed_flaw find_line_flaw(const transaction& tx, const document_schema& schema) {
  if (tx.addr_country && !has_line(tx) && schema.asks_for(DEMAND_LINE_WITH_COUNTRY)) {
    return {"addrLine1", {flaw::missing}};
  }
  for (const auto& [key, line] : address_lines) {
    const owned_text& held = tx.*line;
    const value_flaw found = held ? blank_text_flaw(held.c_str(), schema) : value_flaw{};
    if (found) return {key, found};
  }
  return {};
}

// An address with neither town nor country is not written where addresses are
// structured; where they may have lines as well, anything of it asks for both.
bool is_written(const transaction& tx, const document_schema& schema) {
  if (tx.addr_town || tx.addr_country) return true;
  const auto held = [&](const field_row& part) { return static_cast<bool>(tx.*part.destination); };
  return schema.hybrid_address &&
         (has_line(tx) || std::ranges::any_of(structured_address_fields.rows(), held));
}

template <class record>
keyed_flaw find_address_flaw(const record& tx, const document_schema& schema) {
  if (!schema.structured_address) return find_line_flaw(tx, schema);
  if (!is_written(tx, schema)) return {};
  const bool needs_both = schema.asks_for(DEMAND_TOWN_AND_COUNTRY);
  for (const field_row& part : structured_address_fields.rows()) {
    const owned_text& held = tx.*part.destination;
    const bool needed = needs_both && part.destination == &transaction::addr_town;
    if (!held && needed) return {part.key.data(), {flaw::missing}};
    const value_flaw found = held ? escaped_text_flaw(held.c_str(), schema) : value_flaw{};
    if (found) return {part.key.data(), found};
  }
  if (!tx.addr_country && needs_both) return {"addrCC", {flaw::missing}};
  return schema.hybrid_address ? find_line_flaw(tx, schema) : keyed_flaw{};
}

// A structured address has a town, or it is none.
keyed_flaw find_outside_eea_flaw(const dd_transaction& tx, const document_schema& schema) {
  const bool asked =
      schema.asks_for(DEMAND_ADDRESS_OUTSIDE_EEA) && country_outside_eea(tx.iban.c_str());
  if (!asked || (schema.structured_address ? static_cast<bool>(tx.addr_town) : has_line(tx))) {
    return {};
  }
  return {schema.structured_address ? "addrTown" : "addrLine1", {flaw::not_given}};
}

template <class record>
keyed_flaw find_amount_flaw(const record& tx, const document_schema& schema) {
  return {"amount", amount_flaw(cents_of(tx.amount), schema)};
}

keyed_flaw find_count_flaw(const message& msg, const document_schema& schema) {
  return {"transactions", count_flaw(msg.tx_count, schema)};
}

// Without transactions there is no payment block to hold the other values.
constexpr auto credit_transfer_header = std::to_array<value_row<message>>({
    {.examine = find_count_flaw},
    {"IBAN", &message::iban, DEMAND_OWN_IBAN},
    {"BIC", &message::bic, DEMAND_OWN_BIC},
    {"name", &message::name, DEMAND_NAMES, blank_text_flaw},
});

// IBAN, BIC, name and a transaction have been asked for before, in any mode.
constexpr auto direct_debit_header = std::to_array<value_row<message>>({
    {.examine = find_count_flaw},
    {"name", &message::name, DEMAND_NAMES, blank_text_flaw},
    {"creditor identifier", &message::creditor_id, DEMAND_NOTHING, creditor_identifier_flaw},
    {.examine =
         [](const message& msg, const document_schema& schema) {
           const bool refused =
               msg.local_instrument == TIVEX_DD_COR1 && schema.cor1 != cor1_form::written;
           return keyed_flaw{"local instrument", {refused ? flaw::cor1 : flaw::none}};
         }},
});

// So many rows at the end of both tables are of values that only some schemas have a
// place for.
constexpr std::size_t further_rows = 3;

constexpr auto credit_transfer_rows = std::to_array<value_row<ct_transaction>>({
    {"name", &ct_transaction::name, DEMAND_NAMES, blank_text_flaw},
    {"bic", &ct_transaction::bic, DEMAND_OTHER_BIC},
    {.examine = [](const ct_transaction& tx,
                   const document_schema& schema) { return find_address_flaw(tx, schema); }},
    {"purp", &ct_transaction::purpose, DEMAND_NOTHING, purpose_flaw},
    {.examine = find_amount_flaw<ct_transaction>},
    {"date", &ct_transaction::date, DEMAND_NOTHING, date_flaw},
    {"id", &ct_transaction::end_to_end_id, DEMAND_NOTHING, identifier_flaw},
    {"ref", &ct_transaction::remittance, DEMAND_NOTHING, blank_text_flaw},
    {"ultmtDbtr", &ct_transaction::ultimate_debtor, DEMAND_NOTHING, blank_text_flaw},
    {"ultmtCdtr", &ct_transaction::ultimate_creditor, DEMAND_NOTHING, blank_text_flaw},
    {"instrId", &ct_transaction::instruction_id, DEMAND_NOTHING, identifier_flaw},
});

constexpr auto direct_debit_rows = std::to_array<value_row<dd_transaction>>({
    {"name", &dd_transaction::name, DEMAND_NAMES, blank_text_flaw},
    {"bic", &dd_transaction::bic, DEMAND_OTHER_BIC},
    {.examine = [](const dd_transaction& tx,
                   const document_schema& schema) { return find_address_flaw(tx, schema); }},
    {.examine = find_outside_eea_flaw},
    {.examine = find_amount_flaw<dd_transaction>},
    {"date", &dd_transaction::date, DEMAND_NOTHING, date_flaw},
    {"id", &dd_transaction::end_to_end_id, DEMAND_NOTHING, identifier_flaw},
    {"mref", &dd_transaction::mandate_id, DEMAND_MANDATE, mandate_reference_flaw},
    {"mdate", &dd_transaction::mandate_date, DEMAND_MANDATE, date_flaw},
    {"old_mref", &dd_transaction::old_mandate_id, DEMAND_NOTHING, mandate_reference_flaw},
    {"ref", &dd_transaction::remittance, DEMAND_NOTHING, blank_text_flaw},
    {"ultmtDbtr", &dd_transaction::ultimate_debtor, DEMAND_NOTHING, blank_text_flaw},
    {"ultmtCdtr", &dd_transaction::ultimate_creditor, DEMAND_NOTHING, blank_text_flaw},
    {"instrId", &dd_transaction::instruction_id, DEMAND_NOTHING, identifier_flaw},
});

// Notes a flaw of the message itself (number 0) or of a transaction.
bool refuse(message& msg, std::uint32_t number, const keyed_flaw& flawed, const char* version) {
  char reason[128] = {};
  describe(reason, sizeof reason, flawed.found, version);
  if (number == 0) return msg.fail_with("message: %s %s", flawed.key, reason);
  return msg.fail_with("transaction %" PRIu32 ": %s %s", number, flawed.key, reason);
}

// The first flaw by the rows of a table, if there is one.
template <class holder>
keyed_flaw first_flaw(const holder& target, const document_schema& schema,
                      std::span<const value_row<holder>> rows) {
  for (const value_row<holder>& row : rows) {
    const keyed_flaw flawed = row.find_flaw(target, schema);
    if (flawed.found) return flawed;
  }
  return {};
}

bool header_accepted(message& msg, const document_form& form,
                     std::span<const value_row<message>> rows) {
  const keyed_flaw flawed = first_flaw(msg, form.schema, rows);
  return !flawed.found || refuse(msg, 0, flawed, form.version);
}

// The message's date counts where a transaction has none of its own.
template <class record>
value_flaw find_date_flaw(const message& msg, const document_schema& schema) {
  for (const auto* tx = first_transaction<record>(msg); tx != nullptr; tx = tx->next) {
    if (!tx->date) return date_flaw(msg.date.c_str(), schema);
  }
  return {};
}

// Payment identifiers are the message's with "-P" and the block's number.
bool has_room_for_payment_ids(message& msg, int blocks, const char* version) {
  constexpr unsigned longest_id = 35;
  unsigned room = longest_id - 2;
  for (int number = blocks; number > 0; number /= 10) --room;
  if (std::strlen(msg.message_id.c_str()) <= room) return true;
  return msg.fail_with(
      "message: message id above %u bytes, payment ids above %u (not allowed by %s)", room,
      longest_id, version);
}

// The values that the header is completed with.
template <class record>
bool frame_accepted(message& msg, const document_form& form, const payment_blocks<record>& blocks) {
  const value_flaw date = find_date_flaw<record>(msg, form.schema);
  if (date) return refuse(msg, 0, {"date", date}, form.version);
  int count = 0;
  blocks.for_each([&count](const payment_block<record>& /*block*/, int number) { count = number; });
  if (!has_room_for_payment_ids(msg, count, form.version)) return false;
  const value_flaw id = sepa_identifier_flaw(msg.message_id.c_str());
  return !id || refuse(msg, 0, {"message id", id}, form.version);
}

// Sums come last: one that is too long may come from one amount.
template <class record>
bool sums_accepted(message& msg, const document_form& form, const payment_blocks<record>& blocks) {
  value_flaw found = stated_sum_flaw(stated_cents(form.strict, blocks.totals()), form.schema);
  blocks.for_each([&](const payment_block<record>& block, int /*number*/) {
    if (!found) found = stated_sum_flaw(stated_cents(form.strict, block.totals), form.schema);
  });
  return !found || refuse(msg, 0, {"sum", found}, form.version);
}

template <class record>
bool transactions_accepted(message& msg, const document_form& form,
                           std::span<const value_row<record>> rows) {
  const std::size_t left_out = form.schema.further_elements ? 0 : further_rows;
  const auto written = rows.first(rows.size() - left_out);
  std::uint32_t number = 1;
  for (const auto* tx = first_transaction<record>(msg); tx != nullptr; tx = tx->next, ++number) {
    const bool lost = number == msg.lost.transaction;
    const keyed_flaw flawed =
        lost ? keyed_flaw{msg.lost.key, {flaw::lost}} : first_flaw(*tx, form.schema, written);
    if (flawed.found) return refuse(msg, number, flawed, form.version);
  }
  return true;
}

template <class record>
bool accepted(message& msg, const document_form& form, const payment_blocks<record>& blocks,
              std::span<const value_row<message>> header, std::span<const value_row<record>> rows) {
  return header_accepted(msg, form, header) && frame_accepted(msg, form, blocks) &&
         transactions_accepted(msg, form, rows) && sums_accepted(msg, form, blocks);
}

}  // namespace

bool schema_accepts(message& msg, const document_form& form,
                    const payment_blocks<ct_transaction>& blocks) {
  return accepted<ct_transaction>(msg, form, blocks, credit_transfer_header, credit_transfer_rows);
}

bool schema_accepts(message& msg, const document_form& form,
                    const payment_blocks<dd_transaction>& blocks) {
  return accepted<dd_transaction>(msg, form, blocks, direct_debit_header, direct_debit_rows);
}

}  // namespace tivex
