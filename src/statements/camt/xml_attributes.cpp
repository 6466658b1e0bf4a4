// The attributes of a start tag.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

#include "statements/camt/xml_characters.h"
#include "statements/camt/xml_markup.h"
#include "statements/camt/xml_reference.h"
#include "statements/text_steps.h"

namespace tivex {

namespace {

// Whether this is the attribute to be kept; what has the prefix of namespaces is none.
bool is_kept(std::string_view name) {
  constexpr std::string_view wanted = kept_attribute;
  if (name.size() < wanted.size()) return false;
  const std::size_t before = name.size() - wanted.size();
  if (std::string_view(name.data() + before, wanted.size()) != wanted) return false;
  return before == 0 || (name[before - 1] == ':' && !begins_with(name, "xmlns:"));
}

// The first name that was there before; null when all differ. They are put in order.
const char* find_second(std::string_view* names, std::size_t count) {
  std::sort(names, names + count, [](std::string_view left, std::string_view right) {
    if (left.size() != right.size()) return left.size() < right.size();
    const int order = std::memcmp(left.data(), right.data(), left.size());
    return order != 0 ? order < 0 : left.data() < right.data();
  });
  const char* found = nullptr;
  for (std::size_t place = 1; place < count; ++place) {
    const std::string_view name = names[place];
    if (name == names[place - 1] && (found == nullptr || name.data() < found)) found = name.data();
  }
  return found;
}

}  // namespace

// Up to the quotation mark at the value's end.
char* xml_markup::check_value(char* at, char quote) {
  for (;;) {
    at =
        quote == '"' ? find_special<'"', '<', '&'>(at, end) : find_special<'\'', '<', '&'>(at, end);
    if (*at == quote) return at;
    if (*at == '<') return fail();
    if (*at == '&') {
      char32_t character = 0;
      const char* const next = read_reference(at, character);
      if (next == nullptr) return fail();
      at += next - at;
    } else {
      at = pass_character(at);
      if (at == nullptr) return nullptr;
    }
  }
}

char* xml_markup::pass_attribute(char* at, char*& name_end, xml_attribute& value) {
  name_end = pass_name(at);
  if (name_end == nullptr) return nullptr;
  at = skip_space(name_end);
  if (*at != '=') return fail();
  at = skip_space(at + 1);
  const char quote = *at;
  if (quote != '"' && quote != '\'') return fail();
  value.value = at + 1;
  value.value_end = check_value(at + 1, quote);
  return value.value_end == nullptr ? nullptr : value.value_end + 1;
}

char* xml_markup::read_tag_rest(char* at, tag_rest& rest) {
  // Few attributes are compared as they come, many at the tag's end.
  constexpr std::size_t few = 8;
  std::string_view names[few];
  std::size_t count = 0;
  char* const first = at;
  const unsigned first_line = line_;
  for (;;) {
    char* const next = skip_space(at);
    if (*next == '>' || *next == '/') {
      rest.is_empty = *next == '/';
      if (rest.is_empty && next[1] != '>') return fail();
      at = next + (rest.is_empty ? 2 : 1);
      break;
    }
    if (next == at) return fail();
    char* name_end = nullptr;
    xml_attribute attribute;
    const unsigned line = line_;
    at = pass_attribute(next, name_end, attribute);
    if (at == nullptr) return nullptr;
    const std::string_view name = between(next, name_end);
    if (count < few) {
      if (std::find(names, names + count, name) != names + count) {
        line_ = line;
        return fail();
      }
      names[count] = name;
    }
    ++count;
    if (rest.kept.value == nullptr && is_kept(name)) rest.kept = attribute;
  }
  return count <= few || names_differ(first, count, first_line) ? at : nullptr;
}

// Looks once more at many attributes from the first one on, which are known to be good.
bool xml_markup::names_differ(char* at, std::size_t count, unsigned first_line) {
  const unsigned last_line = line_;
  auto* const names = static_cast<std::string_view*>(std::calloc(count, sizeof(std::string_view)));
  if (names == nullptr) return fail(xml_fault::no_memory) != nullptr;
  const char* const first = at;
  for (std::size_t place = 0; place < count; ++place) {
    char* const name = skip_space(at);
    char* name_end = nullptr;
    xml_attribute value;
    at = pass_attribute(name, name_end, value);
    new (names + place) std::string_view(between(name, name_end));
  }
  const char* const second = find_second(names, count);
  std::free(names);
  line_ = second == nullptr ? last_line : first_line + line_of(first, second) - 1;
  if (second != nullptr) fail();
  return second == nullptr;
}

char* xml_markup::decode_attribute(const xml_attribute& attribute) {
  char* to = attribute.value;
  for (const char* at = attribute.value; at < attribute.value_end;) {
    char32_t character = ' ';
    if (*at == '&') {
      at = read_reference(at, character);
    } else if (is_xml_space(*at)) {
      at += *at == '\r' && at[1] == '\n' ? 2 : 1;
    } else {
      *to++ = *at++;
      continue;
    }
    to = write_character(character, to);
  }
  char* from = attribute.value;
  while (to > from && is_xml_space(to[-1])) --to;
  while (from < to && is_xml_space(*from)) ++from;
  *to = '\0';
  return from;
}

}  // namespace tivex
