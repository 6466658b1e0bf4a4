#include "payments/refused_row.h"

#include <iterator>
#include <string_view>
#include <utility>

#include "payments/library_calls.h"
#include "payments/sound_values.h"

namespace tivex_program {
namespace {

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

// The key that a transaction lacks when it is refused for a reason; null when the
// reason is another.
const char* missing_key(const std::string& reason) {
  for (const missing_value& missing : missing_values) {
    if (reason == missing.reason) return missing.key;
  }
  return nullptr;
}

}  // namespace

row_fault explain(const tivex_t* message, int message_type,
                  const std::vector<tivex_keyvalue_t>& list) {
  const message_handle scratch = new_message(message_type);
  for (const tivex_keyvalue_t& entry : list) {
    if (entry.key == nullptr) break;
    std::vector<tivex_keyvalue_t> alone(std::begin(sound_values), std::end(sound_values));
    alone.push_back(entry);
    alone.push_back({nullptr, nullptr});
    if (add_transaction(scratch.get(), alone.data())) continue;
    // What the value lacks alone, the row may have.
    std::string reason = library_error(scratch.get());
    if (missing_key(reason) == nullptr) return {entry.key, std::move(reason)};
  }
  std::string reason = library_error(message);
  const char* const key = missing_key(reason);
  return {key == nullptr ? "" : key, std::move(reason)};
}

}  // namespace tivex_program
