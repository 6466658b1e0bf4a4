#include "xml/document_writer.h"

namespace tivex {

void document_writer::append_list(failure kind, std::initializer_list<std::string_view> texts) {
  if (failure_ == failure::none && !xml_buffer_append_list(out_, texts)) failure_ = kind;
}

void document_writer::append_escaped(std::string_view name, const char* content) {
  append_list(failure::of_markup, {indent(), "<", name, ">"});
  if (failure_ == failure::none && !xml_buffer_append_escaped(out_, content)) {
    failure_ = failure::of_value;
  }
  append_list(failure::of_markup, {"</", name, ">\n"});
}

bool document_writer::succeeded(message& msg) const {
  if (failure_ == failure::of_value) msg.fail("Out of memory");
  return failure_ == failure::none;
}

}  // namespace tivex
