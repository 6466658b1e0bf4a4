// The lines of a file as banks write it, and the tags that begin them.
#pragma once

#include <cstdint>
#include <string_view>

namespace tivex {

constexpr bool is_blank(char c) { return c == ' ' || c == '\t'; }
constexpr bool is_line_end(char c) { return c == '\r' || c == '\n'; }

// What a tag means for the road through a statement.
enum class tag_meaning : std::uint8_t {
  none,  // text: no tag at all, or another one than those of MT940 and MT942
  reference,
  account,
  statement_number,
  opening_balance,
  entry,
  information,
  addition,         // to an entry, in a form of the bank's
  closing_balance,  // ends the entries' texts
  sums,             // of MT942, end them as well
  other,            // passed over with its text
};

class dialect_lines {
 public:
  // A NUL follows the text.
  dialect_lines(char* text, char* end) : end_(end), next_(text) {}

  // Goes to the next line; false behind the last one.
  bool step();

  char* begin() const { return line_; }
  char* end() const { return line_end_; }
  tag_meaning tag() const { return tag_; }
  // Where the tag's value begins.
  char* value() const { return line_ + tag_length_; }
  // Whether the line ends the statement.
  bool ends_statement() const { return ends_; }

  // Whether it begins a block of SWIFT, or ends one.
  bool begins_block() const { return *line_ == '{' || (*line_ == '-' && line_[1] == '}'); }

  // Whether the next line is there and neither begins with a tag nor ends the statement.
  bool text_follows();
  // Moves the lines of text that follow to the one that begins here, and goes to the last
  // of them. Returns where the text ends then.
  char* join_following(bool with_line_feeds);
  // Lets the line begin at a tag 20 within it; false when there is none.
  bool begin_at_reference();

 private:
  void look_at_next();
  bool ends_at_next() const;

  char* end_;
  char* line_ = nullptr;
  char* line_end_ = nullptr;
  tag_meaning tag_ = tag_meaning::none;
  std::uint8_t tag_length_ = 0;
  bool ends_ = false;
  // The next line, and what is known of it when it has been looked at.
  char* next_;
  bool looked_ = false;
  tag_meaning next_tag_ = tag_meaning::none;
  std::uint8_t next_tag_length_ = 0;
  bool next_ends_ = false;
};

}  // namespace tivex
