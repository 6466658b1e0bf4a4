// Messages made, filled and read in a line each.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "core/message.h"
#include "core/rulebook.h"
#include "tivex.h"

struct message_free {
  void operator()(tivex_t* msg) const { tivex_free(msg); }
};
using message_ptr = std::unique_ptr<tivex_t, message_free>;

inline message_ptr new_message(int type, const char* rulebook) {
  EXPECT_EQ(tivex_init(TIVEX_OPTION_RULEBOOK, rulebook), 1) << rulebook;
  return message_ptr(tivex_new(type));
}

inline message_ptr credit_transfer(const char* rulebook = "DE-3.7") {
  return new_message(TIVEX_CREDIT_TRANSFER, rulebook);
}

using pairs = std::vector<tivex_keyvalue_t>;

inline int add(const message_ptr& msg, pairs list) {
  list.push_back({nullptr, nullptr});
  return tivex_add(msg.get(), list.data());
}

// What a credit transfer needs under every rulebook.
inline const pairs payment = {
    {"iban", "AT611904300234573201"}, {"bic", "BKAUATWW"}, {"amount", "12.50"}};

// The same for a direct debit.
inline const pairs collection = {
    {"iban", "AT611904300234573201"}, {"bic", "BKAUATWW"}, {"amount", "12.50"}, {"seq", "RCUR"}};

inline pairs with(pairs list, pairs more) {
  list.insert(list.end(), more.begin(), more.end());
  return list;
}

inline std::string error_of(const message_ptr& msg) {
  const char* const error = tivex_getError(msg.get());
  return error != nullptr ? error : "";
}

// The document, or an empty text when there is none.
inline std::string document_of(const message_ptr& msg) {
  char* const document = tivex_toXML(msg.get());
  const std::string text = document != nullptr ? document : "";
  std::free(document);
  return text;
}

// The lines that hold an element, without indentation, each ended by a line feed.
inline std::string lines_with(const std::string& document, const std::string& tag) {
  std::string found;
  for (std::size_t start = 0; start < document.size();) {
    const std::size_t end = std::min(document.find('\n', start), document.size() - 1);
    const std::string line = document.substr(start, end + 1 - start);
    if (line.find("<" + tag + ">") != std::string::npos) {
      found += line.substr(line.find_first_not_of('\t'));
    }
    start = end + 1;
  }
  return found;
}

inline const std::vector<const char*> all_rulebooks = {
    "DE-2.6", "DE-2.7", "AT-6", "NL-6", "DE-2.8", "DE-2.9", "DE-3.0", "DE-3.1", "DE-3.5", "DE-3.7"};
