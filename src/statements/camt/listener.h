// Makes statements and entries of what a document says.
#pragma once

#include "statements/camt/balances.h"
#include "statements/camt/elements.h"
#include "statements/camt/record.h"
#include "statements/camt/values.h"
#include "statements/camt/xml_reader.h"
#include "statements/statement_parser.h"

namespace tivex {

class camt_listener {
 public:
  explicit camt_listener(statement_parser& parser) : parser_(parser) {}

  // An element that is known, and where the texts of the elements in it go.
  struct place {
    const element_row* row = nullptr;
    char* values = nullptr;  // of the elements around it
    content inside = content::none;

    bool is_known() const { return row != nullptr; }
    bool keeps_text() const { return row != nullptr && row->kept != keep::nothing; }
  };

  // What is around the first element.
  place document() { return {nullptr, reinterpret_cast<char*>(&value_), content::file}; }

  bool find(const place& parent, const element_name& name, place& element) {
    if (parent.inside == content::none) return false;
    element.row = find_element(parent.inside, name);
    if (element.row == nullptr) return false;
    const std::size_t offset = parent.row == nullptr ? 0 : parent.row->content_offset;
    element.values = parent.values + offset;
    element.inside = element.row->inside;
    return true;
  }

  // False when memory is exhausted, as below.
  bool begin(const place& element) {
    return element.row->happens == event::none || begin_event(element.row->happens);
  }

  bool end(const place& element, const element_text& text) {
    if (text.text != nullptr && element.row->kept != keep::nothing) store(element, text);
    return element.row->happens == event::none || end_event(element.row->happens);
  }

  // Whether the document is one of the kinds that are read.
  bool has_message() const { return has_message_; }

 private:
  bool begin_event(event happens);
  bool end_event(event happens);
  static void store(const place& element, const element_text& text);

  void end_statement();
  void begin_entry();
  bool end_entry();
  bool begin_transaction();
  bool end_transaction();
  bool keep_transaction();
  void drop_transactions();

  statement_parser& parser_;
  document_value value_{};
  bool has_message_ = false;
  balance_choice balances_;

  // The last transaction of an entry stands among the values; when there are several that
  // may make up the entry, all are kept as well.
  std::size_t transactions_ = 0;
  bool may_add_up_ = true;
  record_blocks blocks_;
  kept_transaction* first_kept_ = nullptr;
  kept_transaction* last_kept_ = nullptr;
  kept_transaction* spare_ = nullptr;  // of earlier entries
};

}  // namespace tivex
