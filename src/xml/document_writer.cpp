#include "xml/document_writer.h"

#include <string_view>

namespace tivex {

namespace {

constexpr std::string_view tabs = "\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";

}  // namespace

const char* document_writer::indent() const {
  return tabs.data() + tabs.size() - static_cast<std::size_t>(depth_);
}

void document_writer::append(failure kind, std::initializer_list<const char*> texts) {
  if (failure_ == failure::none && !xml_buffer_append_list(out_, texts)) failure_ = kind;
}

void document_writer::open(const char* name, const char* attributes) {
  append(failure::of_markup, {indent(), "<", name, attributes, ">\n"});
  ++depth_;
}

void document_writer::close(const char* name) {
  --depth_;
  append(failure::of_markup, {indent(), "</", name, ">\n"});
}

void document_writer::fixed(const char* name, const char* content) {
  append(failure::of_markup, {indent(), "<", name, ">", content, "</", name, ">\n"});
}

void document_writer::value(const char* name, const char* content, const char* attributes) {
  append(failure::of_value, {indent(), "<", name, attributes, ">", content, "</", name, ">\n"});
}

void document_writer::escaped(const char* name, const char* content) {
  append(failure::of_markup, {indent(), "<", name, ">"});
  if (failure_ == failure::none && !xml_buffer_append_escaped(out_, content)) {
    failure_ = failure::of_value;
  }
  append(failure::of_markup, {"</", name, ">\n"});
}

void document_writer::optional_value(const char* name, const owned_text& content) {
  if (content) value(name, content.c_str());
}

void document_writer::optional_escaped(const char* name, const owned_text& content) {
  if (content) escaped(name, content.c_str());
}

bool document_writer::succeeded(message& msg) const {
  if (failure_ == failure::of_value) msg.fail("Out of memory");
  return failure_ == failure::none;
}

}  // namespace tivex
