#include "statements/camt/xml_reference.h"

#include <cstring>
#include <string_view>

#include "statements/camt/xml_characters.h"

namespace tivex {

namespace {

struct entity_row {
  std::string_view name;
  char character;
};

constexpr entity_row entities[] = {
    {"amp;", '&'}, {"lt;", '<'}, {"gt;", '>'}, {"quot;", '"'}, {"apos;", '\''}};

// 16 or more when the character is no digit.
constexpr unsigned digit_value(char c) {
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
  return 16;
}

const char* read_number(const char* at, char32_t& character) {
  constexpr char32_t beyond_all = 0x110000;
  const unsigned base = *at == 'x' ? 16 : 10;
  if (base == 16) ++at;
  const char* const first = at;
  for (character = 0; digit_value(*at) < base; ++at) {
    // It stays beyond all however many digits follow.
    if (character < beyond_all) character = character * base + digit_value(*at);
  }
  return at != first && *at == ';' && is_xml_character(character) ? at + 1 : nullptr;
}

}  // namespace

const char* read_reference(const char* at, char32_t& character) {
  if (*++at == '#') return read_number(at + 1, character);
  for (const entity_row& entity : entities) {
    // Not beyond the NUL that follows a text.
    if (std::strncmp(at, entity.name.data(), entity.name.size()) != 0) continue;
    character = static_cast<char32_t>(entity.character);
    return at + entity.name.size();
  }
  return nullptr;
}

}  // namespace tivex
