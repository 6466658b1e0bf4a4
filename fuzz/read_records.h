// What the harnesses share: the text of a file, and reading every record and text of a parser,
// so that a sanitizer sees what points outside.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include "statements/text_block.h"
#include "tivex.h"

// As large as the file, so that every step past it is seen.
struct copied_file : tivex::text_block {
  copied_file(const std::uint8_t* data, std::size_t file_size) : text_block(file_size + 1) {
    if (text == nullptr) std::abort();
    if (file_size > 0) std::memcpy(text, data, file_size);
    text[file_size] = '\0';
    length = file_size;
  }
};

inline std::size_t length_of(const char* text) { return text == nullptr ? 0 : std::strlen(text); }

inline std::size_t read_entry(const tivex_stmt_tx_t& entry) {
  std::size_t sum = length_of(entry.type_code) + length_of(entry.bank_code) +
                    length_of(entry.account_no) + length_of(entry.name);
  for (const char* const text :
       {entry.customer_ref, entry.bank_ref, entry.booking_text, entry.primanota, entry.purpose,
        entry.eref, entry.kref, entry.mref, entry.cred, entry.debt, entry.purp, entry.coam,
        entry.oamt, entry.svwz, entry.abwa, entry.abwe, entry.full_name, entry.return_reason}) {
    sum += length_of(text);
  }
  return sum;
}

inline std::size_t read_records(const tivex_stmt_t* statement) {
  std::size_t sum = 0;
  for (; statement != nullptr; statement = statement->next) {
    sum += length_of(statement->reference) + length_of(statement->account) +
           length_of(statement->opening_currency) + length_of(statement->closing_currency);
    const tivex_stmt_tx_t* entry = statement->first_tx;
    for (; entry != nullptr; entry = entry->next) sum += read_entry(*entry);
  }
  return sum;
}
