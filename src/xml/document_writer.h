#pragma once

#include <initializer_list>
#include <string_view>

#include "core/message.h"
#include "xml/xml_buffer.h"

namespace tivex {

// Writes elements, one line for each start tag, end tag or element with a value,
// indented with a tab for each level. After a failure nothing more is written.
class document_writer {
 public:
  explicit document_writer(xml_buffer_t& out) : out_(out) {}
  document_writer(const document_writer&) = delete;
  document_writer& operator=(const document_writer&) = delete;

  // A start tag with attributes in place, and its end tag; `element` below pairs
  // them.
  void open(std::string_view name, std::string_view attributes = "");
  void close(std::string_view name);

  // An element whose content belongs to the document's form.
  void fixed(std::string_view name, std::string_view content);

  // An element with a value, as it stands or escaped. An attribute, if any,
  // follows the name in the start tag only.
  void value(std::string_view name, std::string_view content, std::string_view attributes = "");
  void escaped(std::string_view name, const char* content);

  // The same, left out when the host has not given the value.
  void optional_value(std::string_view name, const owned_text& content);
  void optional_escaped(std::string_view name, const owned_text& content);

  // Whether all was written; if not because a value did not fit, the message
  // says so.
  bool succeeded(message& msg) const;

 private:
  enum class failure { none, of_markup, of_value };

  // The tabs before a line.
  std::string_view indent() const;
  // Appends texts in turn unless something has failed; `kind` is what a failure
  // now would be.
  void append(failure kind, std::initializer_list<std::string_view> texts);

  xml_buffer_t& out_;
  int depth_ = 0;
  failure failure_ = failure::none;
};

// An element that holds others: open as long as this object lives.
class element {
 public:
  element(document_writer& out, std::string_view name, std::string_view attributes = "")
      : out_(out), name_(name) {
    out_.open(name, attributes);
  }
  ~element() { out_.close(name_); }
  element(const element&) = delete;
  element& operator=(const element&) = delete;

 private:
  document_writer& out_;
  std::string_view name_;
};

}  // namespace tivex
