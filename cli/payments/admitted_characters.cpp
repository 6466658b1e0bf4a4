#include "payments/admitted_characters.h"

#include <tivex.h>

#include <algorithm>
#include <iterator>
#include <vector>

#include "payments/library_calls.h"
#include "payments/rulebooks.h"
#include "payments/sound_values.h"

namespace tivex_program {
namespace {

constexpr std::string_view keys_without_texts[] = {
    "iban", "bic", "amount", "date", "seq", "mdate", "old_iban", "smnda", "purp", "cref", "addrCC"};

// More than any language has; a file of everything forgets.
constexpr std::size_t most_remembered = 4096;

// Letters stand around the character: some may not stand at an end.
std::string value_with(std::string_view character) {
  return std::string(1, 'A').append(character).append(1, 'A');
}

// A message whose one transaction has the value; null when it is refused.
message_handle message_with(int type, bool strict, std::string_view key, const std::string& value) {
  message_handle message = sound_message(type);
  tivex_setStrict(message.get(), strict ? 1 : 0);
  std::vector<tivex_keyvalue_t> list(std::begin(sound_values), std::end(sound_values));
  const std::string name(key);
  if (key != own_name_key) {
    list.push_back({name.c_str(), value.c_str()});
  } else if (tivex_setName(message.get(), value.c_str()) != 1) {
    return nullptr;
  }
  list.push_back({nullptr, nullptr});
  return add_transaction(message.get(), list.data()) ? std::move(message) : nullptr;
}

}  // namespace

bool admitted_characters::is_text(std::string_view key) {
  return std::ranges::find(keys_without_texts, key) == std::end(keys_without_texts);
}

bool admitted_characters::admits(std::string_view key, std::string_view character) {
  // A text's characters come one after the other.
  if (latest_ == nullptr || latest_key_ != key) {
    auto of_key = known_.find(key);
    if (of_key == known_.end()) of_key = known_.emplace(key, known_of_key()).first;
    latest_key_ = of_key->first;
    latest_ = &of_key->second;
  }
  known_of_key& known = *latest_;
  const auto first = static_cast<unsigned char>(character[0]);
  if (character.size() == 1 && first < std::size(known.ascii)) {
    answer& told = known.ascii[first];
    if (told == answer::unknown) told = ask(key, character) ? answer::yes : answer::no;
    return told == answer::yes;
  }
  const auto found = known.others.find(std::string(character));
  if (found != known.others.end()) return found->second;
  if (known.others.size() == most_remembered) known.others.clear();
  return known.others.emplace(character, ask(key, character)).first->second;
}

bool admitted_characters::ask(std::string_view key, std::string_view character) const {
  // A NUL would end the value.
  if (character == std::string_view("\0", 1)) return false;
  const std::string value = value_with(character);
  if (!takes(key, value)) return false;
  // What lacks another key in a document is told by its own check alone.
  return !writes(key, value_with("A")) || writes(key, value);
}

bool admitted_characters::takes(std::string_view key, const std::string& value) const {
  return message_with(type_, strict_, key, value) != nullptr;
}

bool admitted_characters::writes(std::string_view key, const std::string& value) const {
  const message_handle message = message_with(type_, strict_, key, value);
  return message && document_handle(tivex_toXML(message.get())) != nullptr;
}

}  // namespace tivex_program
