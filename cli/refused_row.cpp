#include "refused_row.h"

#include <utility>

#include "handles.h"

namespace tivex_program {
namespace {

std::string reason_of(const tivex_t* message) {
  const char* const text = tivex_getError(message);
  return text == nullptr ? "refused" : text;
}

// The key that a transaction lacks when it is refused for a reason; null when the
// reason is another.
const char* missing_key(const transaction_kind& kind, const std::string& reason) {
  for (const missing_value& missing : kind.missing_values) {
    if (reason == missing.reason) return missing.key;
  }
  return nullptr;
}

}  // namespace

row_fault explain(const tivex_t* message, const transaction_kind& kind,
                  const std::vector<tivex_keyvalue_t>& list) {
  const message_handle scratch(tivex_new(kind.message_type));
  for (const tivex_keyvalue_t& entry : list) {
    if (entry.key == nullptr || !scratch) break;
    std::vector<tivex_keyvalue_t> alone(kind.sound_values.begin(), kind.sound_values.end());
    alone.push_back(entry);
    alone.push_back({nullptr, nullptr});
    if (tivex_add(scratch.get(), alone.data()) == 1) continue;
    // What the value lacks alone, the row may have.
    std::string reason = reason_of(scratch.get());
    if (missing_key(kind, reason) == nullptr) return {entry.key, std::move(reason)};
  }
  std::string reason = reason_of(message);
  const char* const key = missing_key(kind, reason);
  return {key == nullptr ? "" : key, std::move(reason)};
}

}  // namespace tivex_program
