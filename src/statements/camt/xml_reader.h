// A strict reader of XML 1.0 documents, in place: what an element says is decoded where it
// stands and handed to whoever asked for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "statements/camt/xml_characters.h"
#include "statements/camt/xml_markup.h"

namespace tivex {

// The text of an element without white space at both ends, and the attribute that is kept;
// texts end with NUL. Null stands for an empty one.
struct element_text {
  char* text = nullptr;
  char* text_end = nullptr;
  char* attribute = nullptr;
};

// The name of an element, and its first bytes as a number.
struct element_name {
  const char* text;
  std::size_t length;
  std::uint64_t head;
};

// A listener has a type `place`, for what it knows of an element, and
//   bool find(const place& parent, const element_name& name, place& element),
//     whether it knows an element; one that it does not know has a place as made by default;
//   bool begin(const place& element) and
//   bool end(const place& element, const element_text& text), false without memory,
//   place document(), what is around the first element,
//   bool place::is_known() and bool place::keeps_text().
template <class listener>
class xml_reader : public xml_markup {
 public:
  // An element may stand inside so many others.
  static constexpr std::size_t deepest = 256;

  xml_reader(const char* text_end, unsigned line, bool ascii_only, listener& told)
      : xml_markup(text_end, line, ascii_only), listener_(told) {}

  // Reads a document whose XML declaration has been read. False for a fault.
  bool read(char* at) {
    at = read_prolog(at);
    if (at != nullptr) at = read_element(at);
    while (at != nullptr && at != end) at = *at == '<' ? pass_other_markup(at) : pass_blank(at);
    return at != nullptr;
  }

 private:
  using place = typename listener::place;

  struct open_element {
    element_name name;
    place known;
    xml_attribute attribute;
    char* text;  // null as long as there was nothing but white space
    char* text_end;
  };

  char* pass_blank(char* at) { return is_xml_space(*at) ? pass_character(at) : fail(); }

  char* read_prolog(char* at) {
    for (;;) {
      if (*at != '<') {
        at = pass_blank(at);
      } else if (at[1] != '!' && at[1] != '?') {
        return at;
      } else if (std::strncmp(at, "<!DOCTYPE", 9) == 0) {
        return fail(xml_fault::doctype);
      } else {
        at = pass_other_markup(at);
      }
      if (at == nullptr) return nullptr;
    }
  }

  // An element with all that is in it.
  char* read_element(char* at) {
    at = read_start_tag(at);
    while (at != nullptr && open_ != 0) {
      if (*at != '<') {
        at = read_characters(at);
      } else if (at[1] == '/') {
        at = read_end_tag(at);
      } else if (at[1] == '!' && std::strncmp(at, "<![CDATA[", 9) == 0) {
        char* const text = at + 9;
        char* text_end = nullptr;
        at = read_cdata(text, text_end);
        if (at != nullptr && innermost().known.keeps_text()) add_text(text, text_end);
      } else if (at[1] == '!' || at[1] == '?') {
        at = pass_other_markup(at);
      } else {
        at = read_start_tag(at);
      }
    }
    return at;
  }

  open_element& innermost() { return elements_[open_ - 1]; }

  // Texts between elements are mostly a line end and blanks.
  char* read_characters(char* at) {
    const bool is_kept = innermost().known.keeps_text();
    if (!is_kept) {
      while (*at == '\n' || *at == '\r') {
        count_line();
        at = skip_blanks(at + (*at == '\r' && at[1] == '\n' ? 2 : 1), end);
      }
      if (*at == '<') return at;
    }
    char* const special = find_special<'<', '>', '&'>(at, end);
    char* text_end = special;
    char* const next = *special == '<' ? special : read_text(at, special, text_end);
    if (is_kept && next != nullptr) add_text(at, text_end);
    return next;
  }

  // Pieces of a text move together. White space in front is left out: a child may stand there.
  void add_text(char* from, const char* text_end) {
    open_element& element = innermost();
    const bool is_first = element.text == nullptr;
    while (is_first && from < text_end && is_xml_space(*from)) ++from;
    if (from == text_end) return;
    const auto length = static_cast<std::size_t>(text_end - from);
    if (is_first) {
      element.text = from;
      element.text_end = from + length;
    } else {
      std::memmove(element.text_end, from, length);
      element.text_end += length;
    }
  }

  char* read_start_tag(char* at) {
    if (open_ == deepest) return fail(xml_fault::too_deep);
    char* const name = at + 1;
    open_element& element = elements_[open_];
    element.known = place();
    char* name_end = find_name_end(name);
    const bool is_short = name_end != nullptr;
    if (!is_short || !is_known(name, name_end, element)) {
      name_end = pass_name(name);
      if (name_end == nullptr) return nullptr;
      look_up_once_more(name, name_end, is_short, element);
    }
    element.attribute = {};
    element.text = nullptr;
    if (*name_end == '>') return enter(element) ? name_end + 1 : fail(xml_fault::no_memory);
    tag_rest rest;
    at = read_tag_rest(name_end, rest);
    if (at == nullptr) return nullptr;
    element.attribute = rest.kept;
    const bool told = enter(element) && (!rest.is_empty || leave());
    return told ? at : fail(xml_fault::no_memory);
  }

  // Null when the name is not one of few ASCII characters.
  char* find_name_end(char* name) {
    constexpr std::ptrdiff_t longest = 16;
    if (end - name < longest) return nullptr;
#ifdef __SSE2__
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(name));
    const __m128i ends = _mm_or_si128(_mm_cmplt_epi8(bytes, _mm_set1_epi8(' ' + 1)),
                                      _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('>')),
                                                   _mm_cmpeq_epi8(bytes, _mm_set1_epi8('/'))));
    const auto places = static_cast<std::uint32_t>(_mm_movemask_epi8(ends));
    if (places == 0) return nullptr;
    char* const name_end = name + std::countr_zero(places);
    return static_cast<unsigned char>(*name_end) < 0x80 ? name_end : nullptr;
#else
    for (char* const limit = name + longest; name != limit; ++name) {
      const auto byte = static_cast<unsigned char>(*name);
      if (byte >= 0x80) return nullptr;
      if (byte <= ' ' || byte == '>' || byte == '/') return name;
    }
    return nullptr;
#endif
  }

  // Whether the element is one that the listener knows, whose name is good then. At least 16
  // bytes can be read.
  bool is_known(const char* name, const char* name_end, open_element& element) {
    const auto length = static_cast<std::size_t>(name_end - name);
    element.name = {name, length, name_head_unbounded(name, length)};
    if (open_ != 0 && !innermost().known.is_known()) return false;
    return listener_.find(parent(), element.name, element.known);
  }

  // A name that is known to be good: a long one, or one with a prefix that the listener does not
  // know.
  void look_up_once_more(const char* name, const char* name_end, bool was_looked_up,
                         open_element& element) {
    const auto length = static_cast<std::size_t>(name_end - name);
    element.name = {name, length, name_head(name, length)};
    if (open_ != 0 && !innermost().known.is_known()) return;
    const char* local = name_end;
    while (local != name && local[-1] != ':') --local;
    if (local == name && was_looked_up) return;
    const auto local_length = static_cast<std::size_t>(name_end - local);
    listener_.find(parent(), {local, local_length, name_head(local, local_length)}, element.known);
  }

  place parent() { return open_ == 0 ? listener_.document() : innermost().known; }

  // False when there is no memory for what the element says, as below.
  bool enter(const open_element& element) {
    ++open_;
    return !element.known.is_known() || listener_.begin(element.known);
  }

  bool leave() {
    const open_element& element = innermost();
    --open_;
    if (!element.known.is_known()) return true;
    element_text text;
    if (element.text != nullptr) {
      text.text = element.text;
      text.text_end = element.text_end;
      while (is_xml_space(text.text_end[-1])) --text.text_end;
      *text.text_end = '\0';
      if (element.attribute.value != nullptr) text.attribute = decode_attribute(element.attribute);
    }
    return listener_.end(element.known, text);
  }

  char* read_end_tag(char* at) {
    char* const name = at + 2;
    const element_name& wanted = innermost().name;
    const auto left = static_cast<std::size_t>(end - name);
    if (left < wanted.length || !is_same(name, wanted, left)) return fail();
    char* const behind = name + wanted.length;
    char* const tag_end = *behind == '>' ? behind : skip_space(behind);
    if (*tag_end != '>') return fail();
    return leave() ? tag_end + 1 : fail(xml_fault::no_memory);
  }

  static bool is_same(const char* name, const element_name& wanted, std::size_t left) {
    if (left < head_length) return std::memcmp(name, wanted.text, wanted.length) == 0;
    if (name_head_unbounded(name, wanted.length) != wanted.head) return false;
    return wanted.length <= head_length ||
           std::memcmp(name + head_length, wanted.text + head_length,
                       wanted.length - head_length) == 0;
  }

  listener& listener_;
  std::size_t open_ = 0;
  open_element elements_[deepest];
};

}  // namespace tivex
