#include "payments/rulebooks.h"

#include <tivex.h>

#include <initializer_list>
#include <iterator>

#include "payments/library_calls.h"
#include "payments/sound_values.h"

namespace tivex_program {
namespace {

// A message with all else that both kinds of document ask for.
message_handle message_without_bic(int type) {
  message_handle message = new_message(type);
  tivex_setName(message.get(), "Name");
  tivex_setIBAN(message.get(), "DE89370400440532013000");
  tivex_setCreditorIdentifier(message.get(), "DE98ZZZ09999999999");
  tivex_setMessageId(message.get(), "M");
  return message;
}

// Whether a direct debit takes the values; unlike a credit transfer it refuses what it
// does not know.
bool takes(std::initializer_list<tivex_keyvalue_t> values, std::string_view left_out = {}) {
  std::vector<tivex_keyvalue_t> list;
  for (const tivex_keyvalue_t& sound : sound_values) {
    if (sound.key != left_out) list.push_back(sound);
  }
  list.insert(list.end(), values);
  list.push_back({nullptr, nullptr});
  return add_transaction(new_message(TIVEX_DIRECT_DEBIT).get(), list.data());
}

bool takes_name(const char* name) { return takes({{"name", name}}); }

document_handle document_of(const message_handle& message) {
  std::vector<tivex_keyvalue_t> list(std::begin(sound_values), std::end(sound_values));
  list.push_back({nullptr, nullptr});
  if (!add_transaction(message.get(), list.data())) return nullptr;
  return document_handle(tivex_toXML(message.get()));
}

bool goes_without_bic(int type) {
  const message_handle message = message_without_bic(type);
  tivex_setStrict(message.get(), 1);
  return document_of(message) != nullptr;
}

std::string version_of(int type) {
  const document_handle document = document_of(sound_message(type));
  if (!document) return "?";
  constexpr std::string_view mark = ":xsd:";
  std::string_view text = document.get();
  text.remove_prefix(text.find(mark) + mark.size());
  return std::string(text.substr(0, text.find('"')));
}

// Something that a rulebook may admit, and how the library tells.
struct admission {
  const char* what;
  bool (*is_admitted)();
};
constexpr admission admissions[] = {
    {"rows without bic", [] { return takes({}, "bic"); }},
    {"German letters", [] { return takes_name("\u00C4"); }},
    {"wide characters", [] { return takes_name("="); }},
    {"blanks in mref",
     [] {
       return takes({{"mref", "M 1"}});
     }},
    {"address lines",
     [] {
       return takes({{"addrLine1", "A"}});
     }},
    {"address parts",
     [] {
       return takes({{"addrTown", "A"}});
     }},
    {"COR1",
     [] { return tivex_setDDType(new_message(TIVEX_DIRECT_DEBIT).get(), TIVEX_DD_COR1) == 1; }},
    {"--lenient",
     [] {
       const message_handle message = new_message(TIVEX_CREDIT_TRANSFER);
       tivex_setStrict(message.get(), 0);
       return document_of(message) != nullptr;
     }},
    {"transfers without --bic", [] { return goes_without_bic(TIVEX_CREDIT_TRANSFER); }},
    {"debits without --bic", [] { return goes_without_bic(TIVEX_DIRECT_DEBIT); }},
    {"--instant",
     [] {
       return tivex_setCTType(new_message(TIVEX_CREDIT_TRANSFER).get(), TIVEX_CT_INSTANT) == 1;
     }},
    {"--category-purpose",
     [] {
       const message_handle message = sound_message(TIVEX_CREDIT_TRANSFER);
       tivex_setCategoryPurpose(message.get(), "SALA");
       const document_handle document = document_of(message);
       return document && std::string_view(document.get()).find("<CtgyPurp>") != std::string::npos;
     }},
    {"cref",
     [] {
       return takes({{"cref", "RF18539007547034"}});
     }},
    {"ultmtDbtr",
     [] {
       return takes({{"ultmtDbtr", "A"}});
     }},
    {"ultmtCdtr",
     [] {
       return takes({{"ultmtCdtr", "A"}});
     }},
    {"instrId",
     [] {
       return takes({{"instrId", "A"}});
     }},
};

std::vector<std::string> known_names() {
  constexpr std::string_view separator = ", ";
  std::vector<std::string> names;
  std::string_view rest = known_rulebooks;
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = rest.find(separator);
    names.emplace_back(rest.substr(0, end));
    if (end != std::string_view::npos) rest.remove_prefix(end + separator.size());
  }
  return names;
}

}  // namespace

message_handle sound_message(int type) {
  message_handle message = message_without_bic(type);
  tivex_setBIC(message.get(), "COBADEFFXXX");
  return message;
}

std::string select_rulebook(const std::string& name) {
  if (tivex_init(TIVEX_OPTION_RULEBOOK, name.c_str()) == 1) return {};
  return "unknown rulebook '" + name + "' (known: " + known_rulebooks + ")";
}

std::string subset_of(std::string_view rulebook) {
  return rulebook.starts_with("DE") ? "German subset" : rulebook == "AT-6" ? "Austrian subset" : "";
}

bool rows_want_bic() { return !takes({}, "bic"); }

std::vector<rulebook_facts> all_rulebooks() {
  std::vector<rulebook_facts> all;
  for (const std::string& name : known_names()) {
    if (!select_rulebook(name).empty()) continue;
    rulebook_facts facts{
        name, version_of(TIVEX_CREDIT_TRANSFER), version_of(TIVEX_DIRECT_DEBIT), {}};
    for (const admission& each : admissions) {
      if (each.is_admitted()) facts.admitted.emplace_back(each.what);
    }
    all.push_back(std::move(facts));
  }
  return all;
}

}  // namespace tivex_program
