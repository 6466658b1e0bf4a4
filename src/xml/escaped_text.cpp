#include "xml/escaped_text.h"

#include <algorithm>

namespace tivex {

namespace {

std::string_view entity_of(char c) {
  switch (c) {
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '&':
      return "&amp;";
    default:
      return {};
  }
}

}  // namespace

char* escaped_text::put_entities(char* out) const {
  for (const char& c : text_) {
    const std::string_view entity = entity_of(c);
    const std::string_view written = entity.empty() ? std::string_view(&c, 1) : entity;
    out = std::copy(written.begin(), written.end(), out);
  }
  return out;
}

}  // namespace tivex
