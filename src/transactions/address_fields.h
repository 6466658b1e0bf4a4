#pragma once

#include <array>
#include <string_view>

#include "transactions/key_index.h"
#include "transactions/transaction.h"
#include "validation/format_check.h"

namespace tivex {

// A key whose value is stored as it stands when it has the form of a kind.
struct field_row {
  std::string_view key;
  format_kind kind;
  owned_text transaction::*destination;
};

// The parts of a structured postal address (ISO 20022).
inline constexpr key_index structured_address_fields(std::to_array<field_row>({
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
}));

// Stores a copy of an entry's value in a row's field, in place of the one held
// there. A value without the form of its kind is refused, with the reason in the
// message. A copy that cannot be allocated leaves the field unset.
bool field_table_set(message& msg, transaction& target, const tivex_keyvalue_t& entry,
                     const field_row& row);

}  // namespace tivex
