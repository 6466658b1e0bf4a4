#include "directory/find_bank.h"

#include <cstddef>
#include <cstring>
#include <iterator>

#include "directory/directory_data.h"
#include "directory/directory_hash.h"
#include "platform/platform.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

// '_', two letters of a country.
constexpr std::size_t country_prefix_length = 3;
constexpr std::size_t longest_national_key = country_prefix_length + widest_bank_code;

bool same_country(const char* left, const char* right) {
  return left[0] == right[0] && left[1] == right[1] && left[2] == '\0';
}

// The directory's record whose key begins with these bytes; null for none.
const char* find_record(const char* key, std::size_t length) {
  const int index = directory_hash(key);
  if (index < 0) return nullptr;
  const char* const found = directory_records[index];
  return std::memcmp(found, key, length) == 0 ? found : nullptr;
}

std::uint8_t byte_at(const char* bytes, std::size_t index) {
  return static_cast<std::uint8_t>(bytes[index]);
}

void clear(bank_record& record) {
  // What a text area holds behind the texts does not matter.
  std::memset(static_cast<void*>(&record), 0, offsetof(bank_record, text));
}

using text_member = const char* bank_record::*;

constexpr text_member german_fields[] = {&bank_record::successor, &bank_record::bic,
                                         &bank_record::name,      &bank_record::postcode,
                                         &bank_record::city,      &bank_record::country};
constexpr std::size_t german_field_count = std::size(german_fields);

// Copies a record's fields from there on. Returns where the text goes on behind
// the last field, null when it ends with it.
const char* copy_fields(bank_record& record, const char* from, bool german) {
  char* to = record.text;
  // Only German records name a successor.
  for (std::size_t field = german ? 0 : 1; field < german_field_count; ++field) {
    record.*german_fields[field] = to;
    while (*from != field_separator && *from != '\0') *to++ = *from++;
    *to++ = '\0';
    if (*from++ == '\0') return nullptr;
  }
  return from;
}

// Reads one version of a record, or the only one. Returns where the next one
// begins, null when there is none.
const char* read_version(bank_record& record, const char* from, bool german) {
  clear(record);
  if (!german) return copy_fields(record, from, german);
  record.method = byte_at(from, 1);
  record.iban_rule = byte_at(from, 2) << 8 | byte_at(from, 3);
  return copy_fields(record, from + german_block_length, german);
}

void read_bic_record(bank_record& record, const char* from) {
  clear(record);
  record.scheme_flags = byte_at(from, bic_length);
  char* to = record.text;
  record.bic = to;
  std::memcpy(to, from, bic_length);
  to[bic_length] = '\0';
  to += bic_length + 1;
  record.name = to;
  const char* const name = from + bic_length + 1;
  const std::size_t name_size = std::strlen(name) + 1;
  std::memcpy(to, name, name_size);
  to += name_size;
  record.country = to;
  std::memcpy(to, from + 4, 2);
  to[2] = '\0';
}

}  // namespace

std::size_t bank_code_width(const char* country) {
  if (country == nullptr) return 0;
  for (const country_width* row = bank_code_widths; row->country != nullptr; ++row) {
    if (same_country(country, row->country)) return row->width;
  }
  return 0;
}

int directory_find_bank(const char* country, const char* bank_code, bank_record* record) {
  const std::size_t width = bank_code_width(country);
  if (width == 0 || bank_code == nullptr || *bank_code == '\0') return 0;
  const std::size_t length = std::strlen(bank_code);
  if (length > width) return 0;

  const char* const listed_under = same_country(country, "LI") ? "CH" : country;
  char key[longest_national_key + 1];
  std::memset(key, '0', sizeof key);
  key[0] = national_mark;
  std::memcpy(key + 1, listed_under, 2);
  const std::size_t key_length = country_prefix_length + width;
  std::memcpy(key + key_length - length, bank_code, length + 1);

  const char* const found = find_record(key, key_length);
  if (found == nullptr) return 0;
  if (record == nullptr) return 1;
  const bool german = same_country(country, "DE");
  const char* const second_version = read_version(*record, found + key_length, german);
  if (german && second_version != nullptr && platform::now() >= directory_switch_time) {
    read_version(*record, second_version, german);
  }
  return 1;
}

int directory_find_bic(const char* bic, bank_record* record) {
  if (bic == nullptr) return 0;
  char key[] = "________XXX";
  static_assert(sizeof key == bic_length + 1);
  constexpr std::size_t short_bic_length = 8;
  const std::size_t length = std::strlen(bic);
  if (length != short_bic_length && length != bic_length) return 0;
  for (std::size_t index = 0; index < length; ++index) {
    key[index] = to_upper(bic[index]);
    if (!is_digit(key[index]) && !is_upper(key[index])) return 0;
  }
  const char* const found = find_record(key, bic_length);
  if (found == nullptr) return 0;
  if (record != nullptr) read_bic_record(*record, found);
  return 1;
}

}  // namespace tivex
