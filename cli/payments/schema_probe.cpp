#include "payments/schema_probe.h"

#include <iterator>
#include <string_view>
#include <utility>

#include "payments/document_room.h"
#include "payments/library_calls.h"
#include "payments/rulebooks.h"
#include "payments/schema_flaw.h"
#include "payments/sound_values.h"

namespace tivex_program {
namespace {

constexpr std::size_t batch_size = 500;

// A probe's own identifier: generated ones are numbered for the documents written.
constexpr header_option probe_id = {"", "", "", false, tivex_setMessageId};

// A structured address is written when it has a town or a country; otherwise its
// other parts would be lost, unless the rulebook asks for both.
bool loses_address(const csv_row& row, const std::vector<const column*>& columns,
                   std::string_view rulebook) {
  if (rulebook != structured_rulebook) return false;
  bool has_parts = false;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (row.cells[i].empty()) continue;
    const std::string_view key = columns[i]->key;
    if (key == "addrCC" || key == "addrTown") return false;
    has_parts = has_parts || key.starts_with("addr");
  }
  return has_parts;
}

}  // namespace

schema_probe::schema_probe(payment_header header, probing extent)
    : header_(std::move(header)), extent_(extent) {
  header_.values.insert(header_.values.begin(), {&probe_id, "probe"});
}

std::string schema_probe::header_fault() const {
  std::string fault;
  const message_handle message = make_message(header_, fault);
  std::vector<tivex_keyvalue_t> list(std::begin(sound_values), std::end(sound_values));
  list.push_back({nullptr, nullptr});
  if (!add_transaction(message.get(), list.data())) return library_error(message.get());
  const document_handle document(tivex_toXML(message.get()));
  return document ? "" : header_flaw(library_error(message.get()));
}

void schema_probe::add(csv_row& row, const std::vector<const column*>& columns,
                       fault_report& faults) {
  if (!header_.strict) return;
  if (loses_address(row, columns, header_.rulebook)) {
    finish(columns, faults);
    return faults.add(row.line, "addrTown", "missing (the address would not be written)");
  }
  if (extent_ == probing::first_fault) return;
  batch_.push_back(std::exchange(row, {}));
  if (batch_.size() == batch_size) finish(columns, faults);
}

void schema_probe::finish(const std::vector<const column*>& columns, fault_report& faults) {
  if (!batch_.empty() && !refusal(batch_, columns).empty()) {
    for (const csv_row& row : batch_) {
      const row_fault flaw = transaction_flaw(refusal({&row, 1}, columns));
      // What is wrong with the header as a whole shows when the document is written.
      if (!flaw.key.empty()) faults.add(row.line, flaw.key, flaw.reason);
    }
  }
  batch_.clear();
}

std::string schema_probe::refusal(std::span<const csv_row> rows,
                                  const std::vector<const column*>& columns) {
  std::string fault;
  const message_handle message = make_message(header_, fault);
  std::vector<tivex_keyvalue_t> list;
  for (const csv_row& row : rows) {
    list_cells(row, columns, list);
    if (!add_transaction(message.get(), list.data())) return library_error(message.get());
  }
  const document_handle document(tivex_toXML(message.get()));
  if (!document) return library_error(message.get());
  bytes_ += transaction_bytes(document.get());
  return {};
}

}  // namespace tivex_program
