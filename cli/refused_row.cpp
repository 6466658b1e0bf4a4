#include "refused_row.h"

#include "handles.h"

namespace tivex_program {
namespace {

std::string reason_of(const tivex_t* message) {
  const char* const text = tivex_getError(message);
  return text == nullptr ? "refused" : text;
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
    if (tivex_add(scratch.get(), alone.data()) != 1) return {entry.key, reason_of(scratch.get())};
  }
  row_fault fault{{}, reason_of(message)};
  for (const missing_value& missing : kind.missing_values) {
    if (fault.reason == missing.reason) fault.key = missing.key;
  }
  return fault;
}

}  // namespace tivex_program
