#include "payments/refused_row.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "payments/advice.h"
#include "payments/library_calls.h"
#include "payments/schema_flaw.h"
#include "payments/sound_values.h"

namespace tivex_program {
namespace {

using value_list = std::vector<tivex_keyvalue_t>;

// The reasons that the library refuses a transaction for although each of its
// values is right, and the key that it lacks, or has too many of.
struct missing_value {
  std::string_view reason;
  const char* key;
};
constexpr missing_value missing_values[] = {
    {"IBAN missing", "iban"},
    {"BIC missing", "bic"},
    {"Address required for BICs outside EEA", "addrLine1"},
    {"Structured address required for BICs outside EEA (at least town and country)", "addrTown"},
    {"Sequence type missing", "seq"},
    {"Amount missing", "amount"},
    {"Creditor reference and remittance information exclude each other", "cref"},
};

// What takes the place of a faulty value, beside the values of a sound transaction.
constexpr tivex_keyvalue_t further_sound_values[] = {{"addrTown", "Wien"}, {"addrLine1", "Ring 1"}};

// The key that a transaction lacks when it is refused for a reason; null when the
// reason is another.
const char* missing_key(const std::string& reason) {
  for (const missing_value& missing : missing_values) {
    if (reason == missing.reason) return missing.key;
  }
  return nullptr;
}

bool has_fault(const std::vector<row_fault>& faults, std::string_view key) {
  return std::ranges::any_of(faults, [&](const row_fault& fault) { return fault.key == key; });
}

bool add(tivex_t* message, value_list list) {
  list.push_back({nullptr, nullptr});
  return add_transaction(message, list.data());
}

// Takes the key's value out, and puts a sound one in where there is one.
void replace(value_list& values, std::string_view key) {
  const auto has_key = [](std::string_view wanted) {
    return [wanted](const tivex_keyvalue_t& each) { return each.key == wanted; };
  };
  std::erase_if(values, has_key(key));
  std::ranges::copy_if(sound_values, std::back_inserter(values), has_key(key));
  std::ranges::copy_if(further_sound_values, std::back_inserter(values), has_key(key));
  // A town is nothing without its country.
  if (key == "addrTown" && std::ranges::none_of(values, has_key("addrCC"))) {
    values.push_back({"addrCC", "AT"});
  }
}

// What the library refuses of the values, each by itself, or what it misses.
std::vector<row_fault> refusals(const tivex_t* message, int message_type,
                                const value_list& values) {
  std::string reason = library_error(message);
  if (const char* const missing = missing_key(reason)) return {{missing, std::move(reason)}};
  std::vector<row_fault> faults;
  const message_handle scratch = new_message(message_type);
  for (const tivex_keyvalue_t& entry : values) {
    value_list alone(std::begin(sound_values), std::end(sound_values));
    alone.push_back(entry);
    if (add(scratch.get(), std::move(alone))) continue;
    // What the value lacks alone, the row may have.
    std::string its_reason = library_error(scratch.get());
    if (missing_key(its_reason) == nullptr) faults.push_back({entry.key, std::move(its_reason)});
  }
  if (faults.empty()) faults.push_back({"", std::move(reason)});
  return faults;
}

// What is wrong with the values as one transaction, or one thing of it.
std::vector<row_fault> flaws_of(const payment_header& header, const value_list& values) {
  std::string none;
  const message_handle message = make_message(header, none);
  if (!add(message.get(), values)) return refusals(message.get(), header.message_type, values);
  if (!header.strict) return {};
  const document_handle document(tivex_toXML(message.get()));
  if (document) return {};
  row_fault flaw = transaction_flaw(library_error(message.get()));
  // What is wrong with the header as a whole shows when the document is written.
  if (flaw.key.empty()) return {};
  return {std::move(flaw)};
}

constexpr std::size_t longest_shown = 60;

std::string shortened(std::string_view value) {
  if (value.size() <= longest_shown) return std::string(value);
  std::size_t length = longest_shown;
  while (length > 0 && (static_cast<unsigned char>(value[length]) & 0xC0) == 0x80) --length;
  return std::string(value.substr(0, length)) + "...";
}

std::string_view as_written(const csv_row& row, std::size_t place) {
  const auto changed = std::ranges::find(row.changed, place, &written_cell::place);
  if (changed != row.changed.end()) return changed->text;
  return place < row.cells.size() ? std::string_view(row.cells[place]) : std::string_view();
}

}  // namespace

void find_all_faults(const payment_header& header, const csv_row& row, const file_columns& columns,
                     std::vector<row_fault>& faults) {
  if (!row.fault.empty() || row.cells.size() != columns.size()) return;
  value_list values;
  list_cells(row, columns, values);
  values.pop_back();
  for (const row_fault& fault : faults) replace(values, fault.key);
  for (bool found = true; found;) {
    found = false;
    for (row_fault& flaw : flaws_of(header, values)) {
      if (has_fault(faults, flaw.key)) continue;
      replace(values, flaw.key);
      found = !flaw.key.empty();
      faults.push_back(std::move(flaw));
    }
  }
}

void tell_row(const csv_row& row, const file_columns& columns, std::vector<row_fault> faults,
              fault_report& report) {
  // What is missing comes last.
  std::ranges::stable_sort(faults, {},
                           [&](const row_fault& fault) { return place_of(columns, fault.key); });
  for (row_fault& fault : faults) {
    file_fault told{row.line, fault.key, std::move(fault.reason)};
    const std::size_t place = place_of(columns, fault.key);
    if (place < columns.size()) {
      told.column = columns[place].name;
      told.value = shortened(as_written(row, place));
    }
    told.detail = std::move(fault.detail);
    told.advice =
        fault.advice.empty() ? std::string(advice_for(told.text)) : std::move(fault.advice);
    report.add(std::move(told));
  }
}

}  // namespace tivex_program
