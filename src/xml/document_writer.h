#pragma once

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string_view>

#include "core/message.h"
#include "xml/escaped_text.h"
#include "xml/xml_buffer.h"

namespace tivex {

// Writes elements, one line for each start tag, end tag or element with a value,
// indented with a tab for each level. After a failure nothing more is written.
// In the strict mode what the schema can do without is left out when it would be
// empty.
//
// The functions become part of their callers: most names are known there, and what is
// always the same is stored without a look at its size.
class document_writer {
 public:
  document_writer(xml_buffer_t& out, bool strict) : out_(out), strict_(strict) {}
  document_writer(const document_writer&) = delete;
  document_writer& operator=(const document_writer&) = delete;

  // A start tag with attributes in place, and its end tag; `element` below pairs
  // them. Of an element that the schema can do without, where the document ended
  // before the start tag and behind it tells whether it is empty.
  [[gnu::always_inline]] void open(std::string_view name, std::string_view attributes = "") {
    append(failure::of_markup, "<", name, attributes, ">\n");
    ++depth_;
  }
  [[gnu::always_inline]] void close(std::string_view name, std::uint32_t before = 0,
                                    std::uint32_t behind = 0) {
    --depth_;
    if (strict_ && behind > 0 && out_.length == behind) return xml_buffer_cut(out_, before);
    append(failure::of_markup, "</", name, ">\n");
  }
  std::uint32_t position() const { return out_.length; }
  bool strict() const { return strict_; }

  // An element whose content belongs to the document's form.
  [[gnu::always_inline]] void fixed(std::string_view name, std::string_view content) {
    append(failure::of_markup, "<", name, ">", content, "</", name, ">\n");
  }

  // An element with a value, as it stands or escaped. An attribute, if any,
  // follows the name in the start tag only. In the strict mode an escaped value that
  // is empty or null is left out.
  [[gnu::always_inline]] void value(std::string_view name, std::string_view content,
                                    std::string_view attributes = "") {
    append(failure::of_value, "<", name, attributes, ">", content, "</", name, ">\n");
  }
  [[gnu::always_inline]] void escaped(std::string_view name, const char* content) {
    if (content == nullptr) content = "";
    if (strict_ && *content == '\0') return;
    if (!put_line("<", name, ">", escaped_text(content), "</", name, ">\n")) {
      append_escaped(name, content);
    }
  }

  // The same, left out when the host has not given the value.
  [[gnu::always_inline]] void optional_value(std::string_view name, const owned_text& content) {
    if (content) value(name, content.c_str());
  }
  [[gnu::always_inline]] void optional_escaped(std::string_view name, const owned_text& content) {
    if (content) escaped(name, content.c_str());
  }

  // Whether all was written; if not because a value did not fit, the message
  // says so.
  bool succeeded(message& msg) const;

 private:
  enum class failure { none, of_markup, of_value };

  // What stands before a line. As many bytes are stored as there are levels at most;
  // the line overwrites what is too much.
  static constexpr std::string_view tabs = "\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";
  std::string_view indent() const { return {tabs.data(), depth_}; }

  static std::size_t size_of(std::string_view piece) { return piece.size(); }
  static std::size_t size_of(const escaped_text& piece) { return piece.size(); }

  static char* put(char* out, std::string_view piece) {
    std::memcpy(out, piece.data(), piece.size());
    return out + piece.size();
  }
  static char* put(char* out, const escaped_text& piece) { return piece.put(out); }

  // Writes a line of so many pieces. False, with nothing changed, where there is no
  // room for it and for all tabs.
  template <class... pieces>
  [[gnu::always_inline]] bool put_line(const pieces&... line) {
    if (failure_ != failure::none) return false;
    const std::size_t need = tabs.size() + (size_of(line) + ...) + 1;
    if (out_.capacity - out_.length < need && !xml_buffer_reserve(out_, need)) return false;
    char* at = xml_buffer_end(out_);
    put(at, tabs);
    at += depth_;
    ((at = put(at, line)), ...);
    *at = '\0';
    out_.length = static_cast<std::uint32_t>(at + 1 - out_.data);
    return true;
  }

  // The same, as far as there is room; `kind` is what a failure now would be.
  template <class... pieces>
  [[gnu::always_inline]] void append(failure kind, const pieces&... line) {
    if (!put_line(line...)) append_list(kind, {indent(), line...});
  }

  // Both do nothing after a failure.
  void append_list(failure kind, std::initializer_list<std::string_view> texts);
  void append_escaped(std::string_view name, const char* content);

  xml_buffer_t& out_;
  bool strict_;
  std::size_t depth_ = 0;
  failure failure_ = failure::none;
};

// Marks an element that the schema can do without.
struct optional_element {};
inline constexpr optional_element left_out_when_empty;

// An element that holds others: open as long as this object lives.
class element {
 public:
  [[gnu::always_inline]] element(document_writer& out, std::string_view name,
                                 std::string_view attributes = "")
      : out_(out), name_(name) {
    out_.open(name, attributes);
  }
  [[gnu::always_inline]] element(document_writer& out, std::string_view name,
                                 optional_element /*mark*/)
      : out_(out), name_(name), before_(out.position()) {
    out_.open(name);
    behind_ = out_.position();
  }
  [[gnu::always_inline]] ~element() { out_.close(name_, before_, behind_); }
  element(const element&) = delete;
  element& operator=(const element&) = delete;

 private:
  document_writer& out_;
  std::string_view name_;
  std::uint32_t before_ = 0;
  std::uint32_t behind_ = 0;
};

}  // namespace tivex
