// Texts put together from those of several elements.
#pragma once

#include <cstddef>

#include "statements/camt/values.h"
#include "statements/record_blocks.h"

namespace tivex {

// Puts the text of an element behind the others of a list. Its end tag, which has been read,
// takes the distance to the next one; it has six bytes at least.
void add_piece(text_list& list, char* text, char* text_end);

// Texts one behind the other with a separator between. A single one stays where it is,
// several get room among the records.
class joined_text {
 public:
  joined_text(record_blocks& records, char separator) : records_(records), separator_(separator) {}

  // Adds texts in this order; null and empty lists add nothing.
  joined_text& add(char* text);
  joined_text& add(const text_list& list);

  // False when memory is exhausted. Null when nothing was added.
  bool finish(char*& text);

 private:
  static constexpr std::size_t most_parts = 4;

  // The text that follows one of a part; null behind the last.
  static char* next_of(const text_list& part, char* text);

  record_blocks& records_;
  char separator_;
  text_list parts_[most_parts];
  std::size_t count_ = 0;
};

}  // namespace tivex
