#include "directory/find_bank.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <iterator>

#include "directory/directory_hash.h"
#include "platform/platform.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

// '_', two letters of a country.
constexpr std::size_t country_prefix_length = 3;
constexpr std::size_t german_width = 8;
constexpr std::size_t alpine_width = 5;

constexpr int none = -1;

bool same_country(const char* left, const char* right) {
  return left[0] == right[0] && left[1] == right[1] && left[2] == '\0';
}

// Letters in upper case and digits; 0 for every other character.
constexpr auto bic_characters = [] {
  std::array<char, 256> table = {};
  for (int code = 0; code < 128; ++code) {
    const char upper = to_upper(static_cast<char>(code));
    if (is_digit(upper) || is_upper(upper)) table[static_cast<std::size_t>(code)] = upper;
  }
  return table;
}();

// The number of the record whose key begins with these bytes.
template <std::size_t length>
int find_record(const char (&key)[length]) {
  const int index = directory_hash({key, length});
  return index >= 0 && std::memcmp(directory_records[index], key, length) == 0 ? index : none;
}

// The number of the record of a bank code, with the zeros that it lacks on its left.
template <std::size_t width>
int find_code(const char* listed_under, std::string_view bank_code) {
  if (bank_code.empty() || bank_code.size() > width) return none;
  char key[country_prefix_length + width];
  key[0] = national_mark;
  std::memcpy(key + 1, listed_under, 2);
  std::fill_n(key + country_prefix_length, width, '0');
  std::memcpy(key + sizeof key - bank_code.size(), bank_code.data(), bank_code.size());
  return find_record(key);
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

// Where the second version of a German record begins, whose first one begins there.
const char* second_version(const char* from) {
  from += german_block_length;
  for (std::size_t field = 0; field < german_field_count; ++field) {
    from = std::strchr(from, field_separator) + 1;
  }
  return from;
}

// The version of a German record that holds now.
const char* current_version(int index) {
  const char* const first = directory_records[index] + country_prefix_length + german_width;
  if (!directory_has_second_version(index) || platform::now() < directory_switch_time) {
    return first;
  }
  return second_version(first);
}

// Copies a version's fields, which begin there.
void copy_fields(bank_record& record, const char* from, bool german) {
  char* to = record.text;
  // Only German records name a successor.
  for (std::size_t field = german ? 0 : 1; field < german_field_count; ++field) {
    record.*german_fields[field] = to;
    while (*from != field_separator && *from != '\0') *to++ = *from++;
    *to++ = '\0';
    if (*from++ == '\0') return;
  }
}

void read_german_block(const char* block, std::uint8_t& method, std::int32_t& iban_rule) {
  method = byte_at(block, 1);
  iban_rule = byte_at(block, 2) << 8 | byte_at(block, 3);
}

void read_german_record(bank_record& record, int index) {
  const char* const version = current_version(index);
  clear(record);
  read_german_block(version, record.method, record.iban_rule);
  copy_fields(record, version + german_block_length, true);
}

void read_alpine_record(bank_record& record, int index) {
  clear(record);
  copy_fields(record, directory_records[index] + country_prefix_length + alpine_width, false);
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
  if (width == 0 || bank_code == nullptr) return 0;
  const bool german = width == german_width;
  const char* const listed_under = same_country(country, "LI") ? "CH" : country;
  const std::string_view code(bank_code, strnlen(bank_code, width + 1));
  const int index = german ? find_code<german_width>(listed_under, code)
                           : find_code<alpine_width>(listed_under, code);
  if (index == none) return 0;
  if (record == nullptr) return 1;
  if (german) {
    read_german_record(*record, index);
  } else {
    read_alpine_record(*record, index);
  }
  return 1;
}

bool directory_find_german_bank(std::string_view bank_code, german_bank& bank) {
  const int index = find_code<german_width>("DE", bank_code);
  if (index == none) return false;
  const char* const version = current_version(index);
  read_german_block(version, bank.method, bank.iban_rule);
  bank.deleted = byte_at(version, 0) != 0;
  bank.successor = {};
  const char* const successor = version + german_block_length;
  if (*successor != field_separator) {
    bank.successor = {successor, std::strchr(successor, field_separator)};
  }
  return true;
}

int directory_find_bic(const char* bic, bank_record* record) {
  if (bic == nullptr) return 0;
  constexpr std::size_t short_bic_length = 8;
  const std::size_t length = strnlen(bic, bic_length + 1);
  if (length != short_bic_length && length != bic_length) return 0;
  char key[bic_length];
  std::memcpy(key, "________XXX", bic_length);
  bool fits = true;
  for (std::size_t place = 0; place < length; ++place) {
    key[place] = bic_characters[static_cast<unsigned char>(bic[place])];
    fits &= key[place] != '\0';
  }
  const int index = fits ? find_record(key) : none;
  if (index == none) return 0;
  if (record != nullptr) read_bic_record(*record, directory_records[index]);
  return 1;
}

}  // namespace tivex
