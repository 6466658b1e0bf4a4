#include "support/messages.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

#include "support/table.h"

const std::vector<std::string> all_rulebooks = {"DE-2.6", "DE-2.7", "AT-6",    "NL-6",
                                                "DE-2.8", "DE-2.9", "DE-3.0",  "DE-3.1",
                                                "DE-3.5", "DE-3.7", "DE-26.11"};

message_ptr new_message(int type, const std::string& rulebook) {
  EXPECT_EQ(tivex_init(TIVEX_OPTION_RULEBOOK, rulebook.c_str()), 1) << rulebook;
  return message_ptr(tivex_new(type));
}

message_ptr with_header(message_ptr msg) {
  const bool filled = msg && tivex_setName(msg.get(), "Name") == 1 &&
                      tivex_setIBAN(msg.get(), "NO9386011117947") == 1 &&
                      tivex_setBIC(msg.get(), "DEUTDEFF") == 1 &&
                      tivex_setCreditorIdentifier(msg.get(), "DE98ZZZ09999999999") == 1;
  return filled ? std::move(msg) : nullptr;
}

int add_alone(const message_ptr& msg, pairs list) {
  list.push_back({nullptr, nullptr});
  return tivex_add(msg.get(), list.data());
}

int add(const message_ptr& msg, const pairs& more) {
  pairs list = {{"iban", "AT611904300234573201"}, {"bic", "BKAUATWW"}, {"amount", "12.50"}};
  if (msg->type == TIVEX_DIRECT_DEBIT) list.push_back({"seq", "RCUR"});
  list.insert(list.end(), more.begin(), more.end());
  return add_alone(msg, list);
}

std::vector<std::pair<std::string, cell>> read_properties(const std::string& list) {
  std::vector<std::pair<std::string, cell>> properties;
  for (const std::string& property : split(list, " ; ")) {
    const std::size_t equals = property.find('=');
    if (equals == property.npos) continue;
    properties.emplace_back(property.substr(0, equals), cell(property.substr(equals + 1)));
  }
  return properties;
}

int call(const message_ptr& msg, const std::string& function, const char* value) {
  static const std::map<std::string, int (*)(tivex_t*, const char*)> setters = {
      {"setIBAN", tivex_setIBAN},
      {"setBIC", tivex_setBIC},
      {"setName", tivex_setName},
      {"setCreditorIdentifier", tivex_setCreditorIdentifier},
      {"setDate", tivex_setDate},
      {"setMessageId", tivex_setMessageId},
      {"setCategoryPurpose", tivex_setCategoryPurpose}};
  static const std::map<std::string, int (*)(tivex_t*, unsigned char)> modes = {
      {"setBatchBooking", tivex_setBatchBooking}, {"setStrict", tivex_setStrict}};
  if (function == "rulebook") return tivex_init(TIVEX_OPTION_RULEBOOK, value);
  if (function == "setCTType") return tivex_setCTType(msg.get(), std::atoi(value));
  if (function == "setDDType") return tivex_setDDType(msg.get(), std::atoi(value));
  if (function == "toXML") return document_of(msg).empty() ? 0 : 1;
  if (const auto mode = modes.find(function); mode != modes.end()) {
    return mode->second(msg.get(), static_cast<unsigned char>(std::atoi(value)));
  }
  if (function.rfind("add", 0) != 0) return setters.at(function)(msg.get(), value);

  const std::vector<std::pair<std::string, cell>> properties = read_properties(value);
  pairs list;
  for (const auto& [key, text] : properties) list.push_back({key.c_str(), text.c_str()});
  return function == "add" ? add_alone(msg, list) : add(msg, list);
}

std::string error_of(const message_ptr& msg) {
  const char* const error = tivex_getError(msg.get());
  return error != nullptr ? error : "";
}

std::string document_of(const message_ptr& msg) {
  char* const document = tivex_toXML(msg.get());
  const std::string text = document != nullptr ? document : "";
  std::free(document);
  return text;
}
