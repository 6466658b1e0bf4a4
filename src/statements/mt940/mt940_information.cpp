// Tag 86: information to the account owner, in numbered subfields.
#include <algorithm>
#include <cstring>

#include "core/number_scanner.h"
#include "statements/mt940/mt940_lines.h"
#include "statements/mt940/purpose_text.h"
#include "statements/places.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

constexpr std::size_t tag_length = 4;   // ":86:"
constexpr std::size_t mark_length = 3;  // "?20"
constexpr int subfield_count = 100;
constexpr int no_subfield = -1;

// Removes the line ends in front of the next tag, which must follow, and ends the field
// with NUL. `line_end` is the first of them and becomes the last. Returns the field's new
// end.
char* join_lines(char*& line_end, char* end) {
  char* to = line_end;
  for (;;) {
    char* const from = line_end + 2;
    if (*from == ':') break;
    line_end = find_line_end(from, end);
    const auto length = static_cast<std::size_t>(line_end - from);
    std::memmove(to, from, length);
    to += length;
  }
  *to = '\0';
  return to;
}

// The number of the subfield that begins here; no_subfield when none does.
int subfield_at(const char* at, const char* end) {
  if (end - at < static_cast<std::ptrdiff_t>(mark_length) || *at != '?') return no_subfield;
  if (!is_digit(at[1]) || !is_digit(at[2])) return no_subfield;
  return two_digits(at + 1);
}

char* find_mark(char* from, char* end) {
  if (from >= end) return end;
  auto* const found =
      static_cast<char*>(std::memchr(from, '?', static_cast<std::size_t>(end - from)));
  return found == nullptr ? end : found;
}

struct subfield_mark {
  char* at;
  int number;
};

// The marks of a field whose numbers rise from each to the next, as they mostly do: then
// each subfield ends at the next mark.
class rising_marks {
 public:
  rising_marks(char* field, char* end) {
    int highest = no_subfield;
    subfield_mark* last = marks_;
    all_rise_ = visit_places_of('?', field, end, [&](char* at) {
      const int number = subfield_at(at, end);
      // The first question mark has to be a mark.
      if (number == no_subfield) return last != marks_;
      if (number <= highest) return false;
      highest = number;
      *last++ = {at, number};
      return true;
    });
    last_ = last;
  }

  bool all_rise() const { return all_rise_; }
  const subfield_mark* begin() const { return marks_; }
  const subfield_mark* end() const { return last_; }

 private:
  subfield_mark marks_[subfield_count];
  subfield_mark* last_;  // behind the last one
  bool all_rise_;
};

// The marks of any field. A question mark may also stand in a text: a subfield ends at
// the first mark with a higher number, or rather at the last mark behind that with the
// next number.
class subfields {
 public:
  subfields(char* field, char* end) : end_(end) {
    visit_places_of('?', field, end, [this](char* at) {
      const int number = subfield_at(at, end_);
      if (number != no_subfield) last_[number] = at;
      return true;
    });
  }

  // Where the content behind a mark with this number ends.
  char* end_of(int number, char* content) const {
    char* candidate = find_mark(content, end_);
    while (candidate < end_ && subfield_at(candidate, end_) <= number) {
      candidate = find_mark(candidate + 1, end_);
    }
    if (candidate == end_ || number + 1 == subfield_count) return candidate;
    return last_[number + 1] == nullptr ? candidate : std::max(candidate, last_[number + 1]);
  }

 private:
  char* end_;
  char* last_[subfield_count] = {};  // mark with each number
};

void append_name(tivex_stmt_tx_t& entry, std::string_view rest) {
  constexpr std::size_t full_line = 27;
  std::size_t used = std::strlen(entry.name);
  if (used < full_line) entry.name[used++] = ' ';
  copy_text(entry.name, rest, used);
}

bool is_purpose(int number) {
  return (number >= 20 && number <= 29) || (number >= 60 && number <= 63);
}

inline void store(tivex_stmt_tx_t& entry, purpose_text& purpose, int number, char* content,
                  char* end) {
  if (is_purpose(number)) return purpose.add(content, end);
  const std::string_view text = between(content, end);
  switch (number) {
    case 0:
      entry.booking_text = content;
      *end = '\0';
      break;
    case 10:
      entry.primanota = content;
      *end = '\0';
      break;
    case 30:
      copy_text(entry.bank_code, text);
      break;
    case 31:
      copy_text(entry.account_no, text);
      break;
    case 32:
      copy_text(entry.name, text);
      break;
    case 33:
      append_name(entry, text);
      break;
    case 34:
      number_scanner(text).read_signed(3, entry.text_key_ext);
      break;
    default:
      break;
  }
}

void read_subfields(tivex_stmt_tx_t& entry, char* field, char* end) {
  purpose_text purpose(entry);
  if (const rising_marks marks(field, end); marks.all_rise()) {
    for (const subfield_mark* each = marks.begin(); each != marks.end(); ++each) {
      char* const content_end = each + 1 != marks.end() ? (each + 1)->at : end;
      store(entry, purpose, each->number, each->at + mark_length, content_end);
    }
    return;
  }
  char* mark = find_mark(field, end);
  const subfields marks(mark, end);
  for (int number = subfield_at(mark, end); number != no_subfield;) {
    char* const content = mark + mark_length;
    mark = marks.end_of(number, content);
    const int next_number = subfield_at(mark, end);
    store(entry, purpose, number, content, mark);
    number = next_number;
  }
}

}  // namespace

line_outcome read_information(mt940_progress& progress) {
  if (progress.entry == nullptr) return line_outcome::statement_ends;
  char* const field = progress.at(tag_length);
  const bool ends = progress.line_end != nullptr && progress.last_tag.is_behind(progress.line_end);
  char* const field_end = ends ? join_lines(progress.line_end, progress.end) : progress.end;
  number_scanner(between(field, field_end)).read_signed(3, progress.entry->gvc);
  // Without a tag behind it the field's end is unknown.
  if (!ends) return line_outcome::statement_ends;
  read_subfields(*progress.entry, field, field_end);
  return line_outcome::next_line;
}

}  // namespace tivex
