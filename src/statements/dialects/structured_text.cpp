#include "statements/dialects/structured_text.h"

#include <array>

#include "statements/dialects/dialect_lines.h"
#include "statements/places.h"
#include "statements/text_steps.h"
#include "statements/utf8.h"

namespace tivex {

namespace {

constexpr std::size_t code_length = 3;
constexpr std::size_t mark_length = 3;  // "?20"
constexpr int bits_of_word = 64;

enum class subfield_kind : std::uint8_t { other, purpose, text, name, name_rest, text_key };

struct subfield_rule {
  subfield_kind kind = subfield_kind::other;
  text_target target = text_target::purpose;
};

struct subfield_row {
  int first, last;
  subfield_rule rule;
};

constexpr subfield_row subfield_rows[] = {
    {0, 0, {subfield_kind::text, text_target::booking_text}},
    {10, 10, {subfield_kind::text, text_target::primanota}},
    {20, 29, {subfield_kind::purpose}},
    {30, 30, {subfield_kind::text, text_target::bank_code}},
    {31, 31, {subfield_kind::text, text_target::account_no}},
    {32, 32, {subfield_kind::name, text_target::full_name}},
    {33, 33, {subfield_kind::name_rest, text_target::full_name}},
    {34, 34, {subfield_kind::text_key}},
    {38, 38, {subfield_kind::text, text_target::second_account}},
    {60, 63, {subfield_kind::purpose}},
};

// The rule of each number, and those of a field's own: they may come again in another.
constexpr auto subfield_rules = [] {
  std::array<subfield_rule, 100> rules = {};
  for (const subfield_row& row : subfield_rows) {
    for (int number = row.first; number <= row.last; ++number) {
      rules[static_cast<std::size_t>(number)] = row.rule;
    }
  }
  return rules;
}();

const subfield_rule& rule_of(int number) {
  return subfield_rules[static_cast<std::size_t>(number)];
}

constexpr auto purpose_numbers = [] {
  std::array<std::uint64_t, 2> bits = {};
  for (std::size_t number = 0; number < subfield_rules.size(); ++number) {
    if (subfield_rules[number].kind != subfield_kind::purpose) continue;
    bits[number / bits_of_word] |= std::uint64_t{1} << number % bits_of_word;
  }
  return bits;
}();

}  // namespace

void structured_text::read(tivex_stmt_tx_t& entry, char* field, char* end) {
  field_ = {};
  field_.whole = between(field, end);
  for (std::size_t word = 0; word < purpose_numbers.size(); ++word) {
    known_.seen[word] &= ~purpose_numbers[word];
  }
  while (is_blank(*field)) ++field;
  if (is_digit(*field)) {
    read_code(entry, field);
    field += code_length;
  }
  char* content = nullptr;
  int number = 0;
  visit_places_of(*field, field, end, [&](char* at) {
    // A text is followed by NUL.
    if (end - at < static_cast<std::ptrdiff_t>(mark_length)) return false;
    if (!is_digit(at[1]) || !is_digit(at[2])) return true;
    if (content != nullptr) read_subfield(entry, number, content, at);
    number = two_digits(at + 1);
    content = at + mark_length;
    return true;
  });
  if (content != nullptr) read_subfield(entry, number, content, end);
}

void structured_text::read_code(tivex_stmt_tx_t& entry, char* digits) {
  const int code = two_digits(digits) * 10 + (digits[2] - '0');
  if (!known_.has_code) {
    known_.has_code = true;
    entry.gvc = code;
  } else if (entry.gvc != code) {
    texts_.add_to_purpose(digits, digits + code_length);
  }
}

// False when the number has come before.
bool structured_text::take_number(int number) {
  std::uint64_t& word = known_.seen[number / bits_of_word];
  const std::uint64_t bit = std::uint64_t{1} << number % bits_of_word;
  const bool first = (word & bit) == 0;
  word |= bit;
  return first;
}

void structured_text::read_subfield(tivex_stmt_tx_t& entry, int number, char* content, char* end) {
  const subfield_rule& rule = rule_of(number);
  if (!take_number(number)) return texts_.add_to_purpose(content, end);
  switch (rule.kind) {
    case subfield_kind::purpose:
      return read_purpose(content, end);
    case subfield_kind::text_key:
      return read_text_key(entry, content, end);
    case subfield_kind::other:
      return texts_.add_to_purpose(content, end);
    default:
      break;
  }
  std::uint8_t& owner = texts_.owner(rule.target);
  if (owner > owned_by_subfield) return texts_.add_to_purpose(content, end);
  owner = owned_by_subfield;
  if (rule.kind == subfield_kind::name) return read_name(content, end);
  if (rule.kind == subfield_kind::name_rest) return read_name_rest(content, end);
  texts_.add(rule.target, content, end);
}

void structured_text::read_text_key(tivex_stmt_tx_t& entry, char* content, char* end) {
  while (content < end && is_blank(*content)) ++content;
  int number = 0;
  for (std::size_t digits = 0; digits < code_length && content < end && is_digit(*content);
       ++digits) {
    number = number * 10 + (*content++ - '0');
  }
  entry.text_key_ext = number;
  texts_.add_to_purpose(content, end);
}

void structured_text::read_name(char* content, char* end) {
  known_.name = between(content, end);
  texts_.add(text_target::full_name, content, end);
  // The second part may stand in front of the first.
  if (known_.has_name_rest) texts_.move_last_to(known_.name_rest, name_separator());
}

// Of a first part that fills its lines the words run on.
char structured_text::name_separator() {
  constexpr std::size_t full_line = 27;
  return characters(known_.name) < full_line ? ' ' : '\0';
}

void structured_text::read_name_rest(char* content, char* end) {
  known_.has_name_rest = true;
  known_.name_rest = texts_.count();
  texts_.add(text_target::full_name, content, end, name_separator());
}

void structured_text::read_keyword(const keyword_row& row, char* content, char* end) {
  field_.target = target_of(row.field);
  std::uint8_t& owner = texts_.owner(field_.target);
  if (owner != 0) {
    field_.target = text_target::purpose;
    return texts_.add_to_purpose(content, end);
  }
  owner = owned_by_subfield;
  content += keyword_length;
  if (row.is_amount) point_for_comma(content, end);
  texts_.add(field_.target, content, end);
  field_.goes_on = false;
  field_.first_piece = between(content, end);
}

// A subfield either begins with a keyword or goes on with what came before it.
void structured_text::read_purpose(char* content, char* end) {
  if (const keyword_row* const row = find_keyword(content, end); row != nullptr) {
    return read_keyword(*row, content, end);
  }
  if (field_.target == text_target::nothing) {
    field_.target = text_target::purpose;
    return texts_.add(text_target::purpose, content, end);
  }
  const bool runs_on = field_.target != text_target::purpose && is_full_line();
  texts_.add(field_.target, content, end, runs_on ? '\0' : ' ');
  field_.last_piece = characters(between(content, end));
  field_.target_characters += field_.last_piece + (runs_on ? 0 : 1);
}

// Whether what goes on has filled its lines: words run on then.
bool structured_text::is_full_line() {
  constexpr std::size_t full_line = 27;
  constexpr std::size_t full_line_behind_keyword = 22;
  if (!field_.goes_on) field_.target_characters = characters(field_.first_piece);
  field_.goes_on = true;
  return field_.last_piece >= full_line || field_.target_characters == full_line_behind_keyword;
}

std::size_t structured_text::characters(std::string_view text) {
  if (is_ascii(text)) return text.size();
  if (field_.encoded == encoding::unknown) {
    field_.encoded = is_utf8(field_.whole) ? encoding::utf8 : encoding::byte_each;
  }
  return field_.encoded == encoding::utf8 ? count_utf8_characters(text) : text.size();
}

}  // namespace tivex
