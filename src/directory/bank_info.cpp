// The exported lookups: a directory record as one block of the host's own.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "directory/find_bank.h"
#include "tivex.h"
#include "validation/iban.h"

namespace tivex {

namespace {

enum bank_result {
  FOUND = 1,
  OTHER_COUNTRY = 0,
  IBAN_INVALID = -1,
  NOT_FOUND = -2,
  NO_MEMORY = -3
};

enum deletion_mark { MARKED = 1, NOT_MARKED = 0 };

// Makes the block: the fixed fields, behind them the texts.
bank_result hand_out(const bank_record& record, tivex_bank_info_t*& info) {
  struct text_field {
    const char* text;
    char* tivex_bank_info_t::*field;
  };
  const text_field fields[] = {{record.name, &tivex_bank_info_t::name},
                               {record.postcode, &tivex_bank_info_t::postcode},
                               {record.city, &tivex_bank_info_t::city},
                               {record.country, &tivex_bank_info_t::country},
                               {record.bic, &tivex_bank_info_t::bic}};
  std::size_t size = sizeof(tivex_bank_info_t) + 2;
  for (const text_field& field : fields) {
    if (field.text != nullptr) size += std::strlen(field.text) + 1;
  }
  auto* const block = static_cast<tivex_bank_info_t*>(std::malloc(size));
  if (block == nullptr) return NO_MEMORY;
  auto* at = reinterpret_cast<char*>(block + 1);
  for (const text_field& field : fields) {
    block->*field.field = nullptr;
    if (field.text == nullptr) continue;
    block->*field.field = at;
    const std::size_t text_size = std::strlen(field.text) + 1;
    std::memcpy(at, field.text, text_size);
    at += text_size;
  }
  block->flags = record.scheme_flags;
  info = block;
  return FOUND;
}

// Finds what a host names by a text of its own.
bool find_german_bank(const char* bank_code, german_bank& bank) {
  if (bank_code == nullptr) return false;
  const std::size_t length = strnlen(bank_code, widest_bank_code + 1);
  return directory_find_german_bank({bank_code, length}, bank);
}

}  // namespace

}  // namespace tivex

int tivex_bankid_check(const char* country, const char* bank_code, tivex_bank_info_t** info) {
  if (tivex::bank_code_width(country) == 0) return tivex::OTHER_COUNTRY;
  tivex::bank_record record;
  tivex::bank_record* const wanted = info == nullptr ? nullptr : &record;
  if (tivex::directory_find_bank(country, bank_code, wanted) == 0) return tivex::NOT_FOUND;
  return info == nullptr ? tivex::FOUND : tivex::hand_out(record, *info);
}

int tivex_iban_getBank(const char* iban, tivex_bank_info_t** info) {
  if (tivex_iban_check(iban) != 1) return tivex::IBAN_INVALID;
  const char country[] = {iban[0], iban[1], '\0'};
  // The bank code follows the check digits. Checks have told that it is there.
  const std::size_t width = tivex::bank_code_width(country);
  char bank_code[tivex::widest_bank_code + 1] = {};
  std::memcpy(bank_code, iban + 4, width);
  return tivex_bankid_check(country, bank_code, info);
}

int tivex_bic_getBank(const char* bic, tivex_bank_info_t** info) {
  tivex::bank_record record;
  tivex::bank_record* const wanted = info == nullptr ? nullptr : &record;
  if (tivex::directory_find_bic(bic, wanted) == 0) return tivex::NOT_FOUND;
  return info == nullptr ? tivex::FOUND : tivex::hand_out(record, *info);
}

int tivex_bankid_getMethod(const char* bank_code) {
  tivex::german_bank bank;
  if (!tivex::find_german_bank(bank_code, bank)) return tivex::NOT_FOUND;
  return bank.method;
}

int tivex_bankid_getSuccessor(const char* bank_code, char* successor) {
  tivex::german_bank bank;
  const bool found = tivex::find_german_bank(bank_code, bank);
  if (successor != nullptr) {
    // No more than fits: the directory's own check holds successors to this width.
    const std::size_t length = std::min(bank.successor.size(), tivex::widest_bank_code);
    if (length > 0) std::memcpy(successor, bank.successor.data(), length);
    successor[length] = '\0';
  }
  if (!found) return tivex::NOT_FOUND;
  return bank.deleted ? tivex::MARKED : tivex::NOT_MARKED;
}
