// Any bytes as a statement file. Every record and text that comes out is read, so
// that a sanitizer sees what points outside.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "core/wiped_object.h"
#include "statements/mt940.h"

namespace {

std::size_t length_of(const char* text) { return text == nullptr ? 0 : std::strlen(text); }

std::size_t read_entry(const tivex_stmt_tx_t& entry) {
  std::size_t sum = length_of(entry.type_code) + length_of(entry.bank_code) +
                    length_of(entry.account_no) + length_of(entry.name);
  for (const char* const text :
       {entry.customer_ref, entry.bank_ref, entry.booking_text, entry.primanota, entry.purpose,
        entry.eref, entry.kref, entry.mref, entry.cred, entry.debt, entry.purp, entry.coam,
        entry.oamt, entry.svwz, entry.abwa, entry.abwe}) {
    sum += length_of(text);
  }
  return sum;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto* const parser = tivex_stmt_parser_new();
  auto* const text = static_cast<char*>(std::malloc(size + 1));
  if (parser == nullptr || text == nullptr) std::abort();
  if (size > 0) std::memcpy(text, data, size);
  text[size] = '\0';
  parser->format = TIVEX_FORMAT_MT940;
  parser->mt940 = tivex::make_wiped<tivex::mt940_state>().release();
  const int result = tivex::mt940_parse(*parser, text);
  if (result != (size > 0 && data[0] != 0 ? 1 : 0)) std::abort();
  std::size_t sum = 0;
  for (const tivex_stmt_t* statement = parser->first; statement != nullptr;
       statement = statement->next) {
    sum += length_of(statement->reference) + length_of(statement->account) +
           length_of(statement->opening_currency) + length_of(statement->closing_currency);
    for (const tivex_stmt_tx_t* entry = statement->first_tx; entry != nullptr;
         entry = entry->next) {
      sum += read_entry(*entry);
    }
  }
  parser->mt940->text = text;
  parser->mt940->size = size + 1;
  tivex_stmt_parser_free(parser);
  return sum == static_cast<std::size_t>(-1) ? 1 : 0;
}
