#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "core/message.h"
#include "xml/xml_buffer.h"

namespace tivex {

// Writes elements, one line for each start tag, end tag or element with a value,
// indented with a tab for each level. After a failure nothing more is written.
// In the strict mode what the schema can do without is left out when it would be
// empty.
class document_writer {
 public:
  document_writer(xml_buffer_t& out, bool strict) : out_(out), strict_(strict) {}
  document_writer(const document_writer&) = delete;
  document_writer& operator=(const document_writer&) = delete;

  // A start tag with attributes in place, and its end tag; `element` below pairs
  // them. Of an element that the schema can do without, where the document ended
  // before the start tag and behind it tells whether it is empty.
  void open(std::string_view name, std::string_view attributes = "");
  void close(std::string_view name, std::uint32_t before = 0, std::uint32_t behind = 0);
  std::uint32_t position() const { return out_.length; }

  // An element whose content belongs to the document's form.
  void fixed(std::string_view name, std::string_view content);

  // An element with a value, as it stands or escaped. An attribute, if any,
  // follows the name in the start tag only. In the strict mode an escaped value that
  // is empty or null is left out.
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
  bool strict_;
  int depth_ = 0;
  failure failure_ = failure::none;
};

// Marks an element that the schema can do without.
struct optional_element {};
inline constexpr optional_element left_out_when_empty;

// An element that holds others: open as long as this object lives.
class element {
 public:
  element(document_writer& out, std::string_view name, std::string_view attributes = "")
      : out_(out), name_(name) {
    out_.open(name, attributes);
  }
  element(document_writer& out, std::string_view name, optional_element /*mark*/)
      : out_(out), name_(name), before_(out.position()) {
    out_.open(name);
    behind_ = out_.position();
  }
  ~element() { out_.close(name_, before_, behind_); }
  element(const element&) = delete;
  element& operator=(const element&) = delete;

 private:
  document_writer& out_;
  std::string_view name_;
  std::uint32_t before_ = 0;
  std::uint32_t behind_ = 0;
};

}  // namespace tivex
