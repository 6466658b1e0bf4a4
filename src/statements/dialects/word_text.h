#pragma once

#include "statements/dialects/entry_texts.h"

namespace tivex {

struct word_row;

// The word that is written here between slashes, of those that banks in the Netherlands and
// Belgium use; null when there is none. The first slash stands in front of `at`. NUL ends
// a text at the latest.
const word_row* find_word(const char* at);
// The same with the first slash at `at`, and line ends anywhere.
bool begins_with_word(const char* at);

// Tag 86 in words between slashes, each with its value behind it.
class word_text {
 public:
  explicit word_text(entry_texts& texts) : texts_(texts) {}

  // Reads a field whose lines are joined, and which begins with a word.
  void read(char* field, char* end);

 private:
  struct word {
    char* begin;
    char* end;            // its slash
    const word_row* row;  // null for a word that is not known
  };

  static word word_at(char* at, bool any);
  static word find_next(const word& current, char* value, char* end);
  void read_value(const word& current, char* value, char* end);
  void read_counterparty(const word_row& row, char* value, char* end);
  void add_with_word(const word& current, char* end);

  entry_texts& texts_;
};

}  // namespace tivex
