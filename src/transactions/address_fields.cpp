#include "transactions/address_fields.h"

#include <array>

#include "validation/ascii.h"

namespace tivex {

namespace {

constexpr std::array<field_row, 13> address_rows = {{
    {"addrDept", FORMAT_TEXT70, &transaction::addr_department},
    {"addrSubDept", FORMAT_TEXT70, &transaction::addr_sub_department},
    {"addrStreet", FORMAT_TEXT70, &transaction::addr_street},
    {"addrNum", FORMAT_TEXT16, &transaction::addr_building_number},
    {"addrBldg", FORMAT_TEXT35, &transaction::addr_building_name},
    {"addrFloor", FORMAT_TEXT70, &transaction::addr_floor},
    {"addrPoBox", FORMAT_TEXT16, &transaction::addr_post_box},
    {"addrRoom", FORMAT_TEXT70, &transaction::addr_room},
    {"addrCode", FORMAT_TEXT16, &transaction::addr_post_code},
    {"addrTown", FORMAT_TEXT35, &transaction::addr_town},
    {"addrLoc", FORMAT_TEXT35, &transaction::addr_town_location},
    {"addrDstrct", FORMAT_TEXT35, &transaction::addr_district},
    {"addrCtrySub", FORMAT_TEXT35, &transaction::addr_country_subdivision},
}};

}  // namespace

constinit const std::span<const field_row> structured_address_fields = address_rows;

const field_row* find_field(std::span<const field_row> table, const char* key) {
  for (const field_row& row : table) {
    if (equal_ignoring_case(key, row.key)) return &row;
  }
  return nullptr;
}

field_outcome field_table_set(message& msg, transaction& target, const tivex_keyvalue_t& entry,
                              std::span<const field_row> table) {
  const field_row* const row = find_field(table, entry.key);
  if (row == nullptr) return field_outcome::unknown_key;
  if (!format_check(row->kind, entry.value)) {
    msg.fail_with("Invalid format for '%.255s'", entry.key);
    return field_outcome::refused;
  }
  msg.keep_copy(target.*row->destination, entry.value);
  return field_outcome::stored;
}

}  // namespace tivex
