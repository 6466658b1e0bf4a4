#include "payments/schema_probe.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "payments/clear_reason.h"
#include "payments/document_room.h"
#include "payments/library_calls.h"
#include "payments/rulebooks.h"
#include "payments/schema_flaw.h"
#include "payments/sound_values.h"

namespace tivex_program {
namespace {

constexpr std::size_t batch_size = 500;

// A probe's own identifier: generated ones are numbered for the documents written.
constexpr header_option probe_id = {"", "", "", tivex_setMessageId};

// A structured address is written when it has a town or a country; otherwise its
// other parts would be lost, unless the rulebook asks for both.
bool loses_address(const csv_row& row, const file_columns& columns, std::string_view rulebook) {
  if (rulebook != structured_rulebook) return false;
  bool has_parts = false;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].known == nullptr || row.cells[i].empty()) continue;
    const std::string_view key = columns[i].known->key;
    if (key == "addrCC" || key == "addrTown") return false;
    has_parts = has_parts || key.starts_with("addr");
  }
  return has_parts;
}

}  // namespace

schema_probe::schema_probe(payment_header header, probing extent)
    : header_(std::move(header)),
      characters_(header_.message_type, header_.strict),
      extent_(extent) {
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

void schema_probe::add(csv_row& row, const file_columns& columns, fault_report& faults) {
  if (!header_.strict) return;
  if (loses_address(row, columns, header_.rulebook)) {
    finish(columns, faults);
    return refuse(row, columns, {}, faults);
  }
  if (extent_ == probing::first_fault) return;
  batch_.push_back(std::exchange(row, {}));
  if (batch_.size() == batch_size) finish(columns, faults);
}

void schema_probe::finish(const file_columns& columns, fault_report& faults) {
  if (!batch_.empty() && !refusal(batch_, columns).empty()) {
    for (const csv_row& row : batch_) refuse(row, columns, {}, faults);
  }
  batch_.clear();
}

void schema_probe::refuse(const csv_row& row, const file_columns& columns,
                          std::vector<row_fault> faults, fault_report& report) {
  // Another reading tells them.
  if (extent_ == probing::first_fault) return report.add(row.line, "refused");
  find_all_faults(header_, row, columns, faults);
  const bool has_town_fault =
      std::ranges::any_of(faults, [](const row_fault& fault) { return fault.key == "addrTown"; });
  if (header_.strict && row.cells.size() == columns.size() && !has_town_fault &&
      loses_address(row, columns, header_.rulebook)) {
    faults.push_back({"addrTown", "missing (the address would not be written)"});
  }
  for (row_fault& fault : faults) {
    const std::size_t place = place_of(columns, fault.key);
    if (place < row.cells.size()) make_clear(fault, row.cells[place], characters_);
  }
  tell_row(row, columns, std::move(faults), report);
}

std::string schema_probe::refusal(std::span<const csv_row> rows, const file_columns& columns) {
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
