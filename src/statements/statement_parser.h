// The parser object that stands behind tivex_stmt_parser_t.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/bounded_format.h"
#include "statements/record_blocks.h"
#include "tivex.h"

namespace tivex {

// The text that statements and entries point into, and its size with the NUL.
struct mt940_state {
  char* text;
  std::size_t size;

  mt940_state() = default;
  ~mt940_state();
  mt940_state(const mt940_state&) = delete;
  mt940_state& operator=(const mt940_state&) = delete;
};

struct statement_parser {
  char error[256];  // first, for a host gets its address as the text
  std::int32_t format;
  mt940_state* mt940;
  tivex_stmt_t* first;
  tivex_stmt_t* last;
  record_blocks records;
  unsigned pending;  // entries left out, which are not booked yet

  statement_parser() = default;
  ~statement_parser();
  statement_parser(const statement_parser&) = delete;
  statement_parser& operator=(const statement_parser&) = delete;

  // Releases every record, for they would point into a text that is not kept.
  void drop_statements() {
    records.release();
    first = nullptr;
    last = nullptr;
    pending = 0;
  }

  // A new statement behind the others, or null when memory is exhausted.
  tivex_stmt_t* append_statement() {
    auto* const statement = records.make<tivex_stmt_t>();
    if (statement == nullptr) return nullptr;
    (last == nullptr ? first : last->next) = statement;
    last = statement;
    return statement;
  }

  // Notes the reason of a failure and gives back the result of one.
  template <class... values>
  int fail(const char* format_text, values... shown) {
    bounded_format(error, sizeof error, format_text, shown...);
    return 0;
  }
};

}  // namespace tivex

struct tivex_stmt_parser final : tivex::statement_parser {};
