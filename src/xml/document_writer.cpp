#include "xml/document_writer.h"

#include <string_view>

namespace tivex {

namespace {

constexpr std::string_view tabs = "\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";

}  // namespace

std::string_view document_writer::indent() const {
  return {tabs.data(), static_cast<std::size_t>(depth_)};
}

void document_writer::append(failure kind, std::initializer_list<std::string_view> texts) {
  if (failure_ == failure::none && !xml_buffer_append_list(out_, texts)) failure_ = kind;
}

void document_writer::open(std::string_view name, std::string_view attributes) {
  append(failure::of_markup, {indent(), "<", name, attributes, ">\n"});
  ++depth_;
}

void document_writer::close(std::string_view name, std::uint32_t before, std::uint32_t behind) {
  --depth_;
  if (strict_ && behind > 0 && out_.length == behind) return xml_buffer_cut(out_, before);
  append(failure::of_markup, {indent(), "</", name, ">\n"});
}

void document_writer::fixed(std::string_view name, std::string_view content) {
  append(failure::of_markup, {indent(), "<", name, ">", content, "</", name, ">\n"});
}

void document_writer::value(std::string_view name, std::string_view content,
                            std::string_view attributes) {
  append(failure::of_value, {indent(), "<", name, attributes, ">", content, "</", name, ">\n"});
}

void document_writer::escaped(std::string_view name, const char* content) {
  if (strict_ && (content == nullptr || *content == '\0')) return;
  append(failure::of_markup, {indent(), "<", name, ">"});
  if (failure_ == failure::none && !xml_buffer_append_escaped(out_, content)) {
    failure_ = failure::of_value;
  }
  append(failure::of_markup, {"</", name, ">\n"});
}

void document_writer::optional_value(std::string_view name, const owned_text& content) {
  if (content) value(name, content.c_str());
}

void document_writer::optional_escaped(std::string_view name, const owned_text& content) {
  if (content) escaped(name, content.c_str());
}

bool document_writer::succeeded(message& msg) const {
  if (failure_ == failure::of_value) msg.fail("Out of memory");
  return failure_ == failure::none;
}

}  // namespace tivex
