#include "statements/camt/xml_markup.h"

#include <cstring>
#include <string_view>

#include "statements/camt/xml_characters.h"
#include "statements/camt/xml_reference.h"

namespace tivex {

namespace {

bool begins_with(const char* at, std::string_view text) {
  return std::strncmp(at, text.data(), text.size()) == 0;
}

// The pieces of a text, moved together.
class decoded_text {
 public:
  explicit decoded_text(char* from) : to_(from), piece_(from) {}

  char* piece() const { return piece_; }
  // The piece ends here.
  void add_piece(const char* piece_end) {
    const auto length = static_cast<std::size_t>(piece_end - piece_);
    if (to_ != piece_) std::memmove(to_, piece_, length);
    to_ += length;
  }
  void add(char32_t character) { to_ = write_character(character, to_); }
  void begin_piece(char* at) { piece_ = at; }
  char* end() const { return to_; }

 private:
  char* to_;
  char* piece_;
};

}  // namespace

char* xml_markup::skip_space(char* at) {
  while (is_xml_space(*at)) at = pass_character(at);
  return at;
}

char* xml_markup::pass_character(char* at) {
  switch (*at) {
    case ' ':
    case '\t':
      return at + 1;
    case '\n':
      count_line();
      return at + 1;
    case '\r':
      count_line();
      return at + (at[1] == '\n' ? 2 : 1);
    default:
      break;
  }
  if (static_cast<unsigned char>(*at) < 0x80 || ascii_only_) return fail();
  const std::size_t length = length_beyond_ascii(at);
  return length == 0 ? fail() : at + length;
}

char* xml_markup::pass_name(char* at) {
  const char* const name = at;
  for (;;) {
    const auto byte = static_cast<unsigned char>(*at);
    if (byte < 0x80) {
      const in_name may_be = ascii_in_name[byte];
      if (may_be == in_name::nothing) return at == name ? fail() : at;
      if (at == name && may_be != in_name::first) return fail();
      ++at;
      continue;
    }
    char* const next = pass_character(at);
    if (next == nullptr) return nullptr;
    const char32_t character = character_at(at);
    if (at == name ? !begins_name(character) : !goes_on_with_name(character)) return fail();
    at = next;
  }
}

char* xml_markup::pass_comment(char* at) {
  for (;;) {
    at = find_special<'-'>(at, end);
    if (*at != '-') {
      at = pass_character(at);
      if (at == nullptr) return nullptr;
    } else if (at[1] != '-') {
      ++at;
    } else {
      return at[2] == '>' ? at + 3 : fail();
    }
  }
}

char* xml_markup::pass_instruction(char* at) {
  const char* const target = at;
  at = pass_name(at);
  if (at == nullptr) return nullptr;
  const auto is_letter = [](char c, char lower) { return (c | 0x20) == lower; };
  if (at - target == 3 && is_letter(target[0], 'x') && is_letter(target[1], 'm') &&
      is_letter(target[2], 'l')) {
    return fail();
  }
  if (*at != '?' && !is_xml_space(*at)) return fail();
  if (*at == '?' && at[1] != '>') return fail();
  for (;;) {
    at = find_special<'?'>(at, end);
    if (*at != '?') {
      at = pass_character(at);
      if (at == nullptr) return nullptr;
    } else if (at[1] == '>') {
      return at + 2;
    } else {
      ++at;
    }
  }
}

char* xml_markup::pass_other_markup(char* at) {
  if (at[1] == '?') return pass_instruction(at + 2);
  return begins_with(at, "<!--") ? pass_comment(at + 4) : fail();
}

char* xml_markup::read_cdata(char* at, char*& decoded_end) {
  decoded_text decoded(at);
  for (;;) {
    at = find_special<']'>(at, end);
    if (*at == ']') {
      if (at[1] == ']' && at[2] == '>') break;
      ++at;
      continue;
    }
    char* const next = pass_character(at);
    if (next == nullptr) return nullptr;
    if (*at == '\r') {
      decoded.add_piece(at);
      decoded.add('\n');
      decoded.begin_piece(next);
    }
    at = next;
  }
  decoded.add_piece(at);
  decoded_end = decoded.end();
  return at + 3;
}

char* xml_markup::read_text(char* from, char* at, char*& decoded_end) {
  decoded_text decoded(from);
  for (;; at = find_special<'<', '>', '&'>(at, end)) {
    if (*at == '<') break;
    if (*at == '>') {
      if (at - decoded.piece() >= 2 && at[-1] == ']' && at[-2] == ']') return fail();
      ++at;
      continue;
    }
    if (*at != '&' && *at != '\r') {
      at = pass_character(at);
      if (at == nullptr) return nullptr;
      continue;
    }
    char32_t character = '\n';
    char* next = nullptr;
    if (*at == '\r') {
      next = pass_character(at);
    } else {
      const char* const behind = read_reference(at, character);
      if (behind == nullptr) return fail();
      next = at + (behind - at);
    }
    decoded.add_piece(at);
    decoded.add(character);
    decoded.begin_piece(next);
    at = next;
  }
  decoded.add_piece(at);
  decoded_end = decoded.end();
  return at;
}

}  // namespace tivex
