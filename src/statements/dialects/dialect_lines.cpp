#include "statements/dialects/dialect_lines.h"

#include <algorithm>
#include <cstring>

#include "statements/places.h"
#include "statements/text_steps.h"

namespace tivex {

namespace {

struct tag_row {
  char tag[6];
  std::uint8_t length;
  tag_meaning meaning;
};

// The most frequent ones stand in front.
constexpr tag_row tags[] = {
    {":61:", 4, tag_meaning::entry},
    {":86:", 4, tag_meaning::information},
    {":NS:", 4, tag_meaning::addition},
    {":20:", 4, tag_meaning::reference},
    {":25:", 4, tag_meaning::account},
    {":25P:", 5, tag_meaning::account},
    {":28C:", 5, tag_meaning::statement_number},
    {":28:", 4, tag_meaning::statement_number},
    {":60F:", 5, tag_meaning::opening_balance},
    {":60M:", 5, tag_meaning::opening_balance},
    {":62F:", 5, tag_meaning::closing_balance},
    {":62M:", 5, tag_meaning::closing_balance},
    {":90C:", 5, tag_meaning::sums},
    {":90D:", 5, tag_meaning::sums},
    {":13C:", 5, tag_meaning::other},
    {":13D:", 5, tag_meaning::other},
    {":21:", 4, tag_meaning::other},
    {":34F:", 5, tag_meaning::other},
    {":64:", 4, tag_meaning::other},
    {":65:", 4, tag_meaning::other},
};

constexpr std::string_view reference_tag = ":20:";

}  // namespace

bool dialect_lines::step() {
  if (next_ == end_) return false;
  if (!looked_) look_at_next();
  looked_ = false;
  line_ = next_;
  tag_ = next_tag_;
  tag_length_ = next_tag_length_;
  ends_ = next_ends_;
  line_end_ = find_either('\r', '\n', line_, end_);
  next_ = line_end_;
  if (next_ < end_ && *next_++ == '\r' && *next_ == '\n') ++next_;
  return true;
}

void dialect_lines::look_at_next() {
  looked_ = true;
  next_tag_ = tag_meaning::none;
  next_tag_length_ = 0;
  next_ends_ = *next_ == '-' && ends_at_next();
  if (*next_ != ':') return;
  const auto* const row =
      std::find_if(std::begin(tags), std::end(tags), [this](const tag_row& candidate) {
        return starts_with(next_, end_, {candidate.tag, candidate.length});
      });
  if (row == std::end(tags)) return;
  next_tag_ = row->meaning;
  next_tag_length_ = row->length;
}

// A dash may also begin a line of text: then it ends the statement where nothing else of
// the statement follows.
bool dialect_lines::ends_at_next() const {
  const char* at = next_ + 1;
  if (*at == '}') return true;
  while (is_blank(*at)) ++at;
  if (at == end_ || is_line_end(*at)) return true;
  at = find_either('\r', '\n', next_, end_);
  while (is_blank(*at) || is_line_end(*at)) ++at;
  if (at == end_) return true;
  return is_line_end(at[-1]) && (*at == '{' || starts_with(at, end_, reference_tag));
}

bool dialect_lines::text_follows() {
  if (next_ == end_) return false;
  if (!looked_) look_at_next();
  return next_tag_ == tag_meaning::none && !next_ends_;
}

char* dialect_lines::join_following(bool with_line_feeds) {
  char* to = line_end_;
  while (text_follows()) {
    step();
    if (with_line_feeds) *to++ = '\n';
    const auto length = static_cast<std::size_t>(line_end_ - line_);
    if (to != line_) std::memmove(to, line_, length);
    to += length;
  }
  return to;
}

bool dialect_lines::begin_at_reference() {
  const std::string_view line = between(line_, line_end_);
  std::size_t at = line.find(reference_tag);
  // A time of day has digits in front.
  while (at != std::string_view::npos && at > 0 && is_digit(line[at - 1])) {
    at = line.find(reference_tag, at + 1);
  }
  if (at == std::string_view::npos) return false;
  line_ += at;
  tag_ = tag_meaning::reference;
  tag_length_ = reference_tag.size();
  return true;
}

}  // namespace tivex
