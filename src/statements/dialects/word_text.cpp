#include "statements/dialects/word_text.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <string_view>

#include "statements/dialects/dialect_lines.h"
#include "statements/dialects/structured_text.h"
#include "statements/places.h"
#include "statements/text_steps.h"

namespace tivex {

enum class word_kind : std::uint8_t {
  value,         // for its target
  first_only,    // a second one is no part of the first
  counterparty,  // account, BIC, name and city between slashes
  frame,         // nothing of its own: another word follows
};

// A word, and what its value is for.
struct word_row {
  std::string_view word;
  text_target target = text_target::purpose;
  word_kind kind = word_kind::value;
  // What may stand in front of the value.
  std::string_view prefixes[2] = {};
};

namespace {

constexpr word_row words[] = {
    {"TRTP", text_target::booking_text},
    {"TRCD", text_target::booking_text, word_kind::first_only},
    {"IBAN", text_target::word_account},
    {"BIC", text_target::word_bank},
    {"NAME", text_target::word_name},
    {"CNTP", text_target::full_name, word_kind::counterparty},
    {"REMI", text_target::svwz, word_kind::value, {"USTD//", "STRD/CUR/"}},
    {"CDTRREF", text_target::word_reference},
    {"EREF", text_target::eref},
    {"MARF", text_target::mref},
    {"CSID", text_target::cred},
    {"PURP", text_target::purp, word_kind::value, {"CD/", "/CD/"}},
    {"ULTD", text_target::abwa, word_kind::value, {"NAME/", "/NAME/"}},
    {"ULTC", text_target::abwe, word_kind::value, {"NAME/", "/NAME/"}},
    {"ULTB", text_target::abwe, word_kind::value, {"NAME/", "/NAME/"}},
    {"RTRN", text_target::return_reason},
    {"BENM", text_target::purpose, word_kind::frame},
    {"ORDP", text_target::purpose, word_kind::frame},
    {"CDTRREFTP", text_target::purpose, word_kind::frame},
    {"ADDR"},
    {"ISDT"},
    {"ORDID"},
    {"PREF"},
    {"INIT"},
    {"ACCW"},
    {"EXCH"},
    {"CHGS"},
    {"SVCL"},
};

constexpr std::size_t shortest = 3;

// Tells most words apart at once.
constexpr std::uint32_t beginning_of(std::string_view word) {
  std::uint32_t beginning = 0;
  for (std::size_t place = 0; place < shortest; ++place) {
    beginning = beginning << 8 | static_cast<unsigned char>(word[place]);
  }
  return beginning << 8 | static_cast<std::uint32_t>(word.size());
}

constexpr auto beginnings = [] {
  std::array<std::uint32_t, std::size(words)> all = {};
  std::transform(std::begin(words), std::end(words), all.begin(),
                 [](const word_row& row) { return beginning_of(row.word); });
  return all;
}();

// The numbers of owners behind that of subfields.
std::uint8_t owner_number(const word_row& row) {
  return static_cast<std::uint8_t>(owned_by_subfield + 1 + (&row - words));
}

// Of what stands in front of a value.
std::size_t prefix_length(const word_row* row, std::string_view value) {
  if (row == nullptr) return 0;
  const auto* const prefix =
      std::find_if(std::begin(row->prefixes), std::end(row->prefixes),
                   [value](std::string_view each) { return begins_with(value, each); });
  return prefix == std::end(row->prefixes) ? 0 : prefix->size();
}

}  // namespace

const word_row* find_word(const char* at) {
  constexpr std::size_t longest = 9;
  std::size_t length = 0;
  while (length < longest && is_upper(at[length])) ++length;
  if (length < shortest || at[length] != '/') return nullptr;
  const std::string_view written(at, length);
  const std::uint32_t beginning = beginning_of(written);
  for (std::size_t index = 0; index < std::size(words); ++index) {
    if (beginnings[index] == beginning && words[index].word == written) {
      return &words[index];
    }
  }
  return nullptr;
}

bool begins_with_word(const char* at) {
  const auto follows = [](const char*& place, char wanted) {
    while (is_line_end(*place)) ++place;
    return *place++ == wanted;
  };
  if (!follows(at, '/')) return false;
  return std::any_of(std::begin(words), std::end(words), [&](const word_row& row) {
    const char* place = at;
    return std::all_of(row.word.begin(), row.word.end(),
                       [&](char wanted) { return follows(place, wanted); }) &&
           follows(place, '/');
  });
}

// A word that is not known counts in some places only.
word_text::word word_text::word_at(char* at, bool any) {
  if (const word_row* const row = find_word(at); row != nullptr) {
    return {at, at + row->word.size(), row};
  }
  if (any) {
    char* end = at;
    while (is_upper(*end)) ++end;
    if (end - at >= 2 && *end == '/') return {at, end, nullptr};
  }
  return {nullptr, nullptr, nullptr};
}

// The word that ends a value; none at the field's end.
word_text::word word_text::find_next(const word& current, char* value, char* end) {
  constexpr int slashes_between_counterparts = 4;
  const bool is_known = current.row != nullptr;
  const bool is_counterparty = is_known && current.row->kind == word_kind::counterparty;
  const bool is_frame = is_known && current.row->kind == word_kind::frame;
  word next = {nullptr, nullptr, nullptr};
  // Directly behind a frame, or what stands in front of a value.
  if (is_frame || value != current.end + 1) next = word_at(value, is_frame);
  if (next.begin != nullptr) return next;
  int slashes = 0;
  visit_places_of('/', value, end, [&](char* at) {
    const bool may_be_empty_part = is_counterparty && slashes < slashes_between_counterparts;
    ++slashes;
    next = word_at(at + 1, at[-1] == '/' && !may_be_empty_part);
    return next.begin == nullptr;
  });
  return next;
}

void word_text::read(char* field, char* end) {
  // What joining the lines left there is no text.
  *end = '\0';
  word current = word_at(field + 1, false);
  while (current.begin != nullptr) {
    char* const whole_value = current.end + 1;
    char* const value = whole_value + prefix_length(current.row, between(whole_value, end));
    const word next = find_next(current, value, end);
    char* value_end = next.begin == nullptr ? end : next.begin - 1;
    while (value_end > whole_value && value_end[-1] == '/') --value_end;
    read_value(current, std::min(value, value_end), value_end);
    current = next;
  }
}

void word_text::read_value(const word& current, char* value, char* end) {
  const bool is_empty = is_blank_text(between(value, end));
  if (current.row == nullptr) return add_with_word(current, is_empty ? current.end : end);
  if (is_empty) return;
  const word_row& row = *current.row;
  if (row.kind == word_kind::counterparty) return read_counterparty(row, value, end);
  if (row.target == text_target::purpose) return add_with_word(current, end);
  std::uint8_t& owner = texts_.owner(row.target);
  const bool is_second = owner == owner_number(row);
  if (owner != 0 && (!is_second || row.kind == word_kind::first_only)) {
    return add_with_word(current, end);
  }
  owner = owner_number(row);
  texts_.add(row.target, value, end, is_second ? ' ' : '\0');
}

void word_text::read_counterparty(const word_row& row, char* value, char* end) {
  constexpr text_target parts[] = {text_target::account_no, text_target::bank_code,
                                   text_target::full_name};
  for (const text_target target : parts) {
    char* const part_end = std::find(value, end, '/');
    std::uint8_t& owner = texts_.owner(target);
    if (owner != 0 && owner != owner_number(row)) {
      texts_.add_to_purpose(value, part_end);
    } else if (!is_blank_text(between(value, part_end))) {
      texts_.add(target, value, part_end, owner == 0 ? '\0' : ' ');
      owner = owner_number(row);
    }
    if (part_end == end) return;
    value = part_end + 1;
  }
  texts_.add_to_purpose(value, end);
}

// What finds no place of its own, with its word.
void word_text::add_with_word(const word& current, char* end) {
  if (end > current.end) *current.end = ' ';
  texts_.add_to_purpose(current.begin, end);
}

}  // namespace tivex
