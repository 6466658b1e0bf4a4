#include "xml/parties.h"

#include <array>
#include <span>

namespace tivex {

namespace {

struct address_element {
  std::string_view name;
  owned_text transaction::*value;
};

constexpr std::array<address_element, 14> structured_elements = {{
    {"Dept", &transaction::addr_department},
    {"SubDept", &transaction::addr_sub_department},
    {"StrtNm", &transaction::addr_street},
    {"BldgNb", &transaction::addr_building_number},
    {"BldgNm", &transaction::addr_building_name},
    {"Flr", &transaction::addr_floor},
    {"PstBx", &transaction::addr_post_box},
    {"Room", &transaction::addr_room},
    {"PstCd", &transaction::addr_post_code},
    {"TwnNm", &transaction::addr_town},
    {"TwnLctnNm", &transaction::addr_town_location},
    {"DstrctNm", &transaction::addr_district},
    {"CtrySubDvsn", &transaction::addr_country_subdivision},
    {"Ctry", &transaction::addr_country},
}};

constexpr std::array<address_element, 3> line_elements = {{
    {"Ctry", &transaction::addr_country},
    {"AdrLine", &transaction::addr_line1},
    {"AdrLine", &transaction::addr_line2},
}};

std::span<const address_element> address_elements(const document_schema& schema) {
  if (schema.structured_address) return structured_elements;
  return line_elements;
}

}  // namespace

void write_address(document_writer& out, const document_schema& schema, const transaction& tx) {
  if (!tx.addr_country && !tx.addr_town && !tx.addr_line1 && !tx.addr_line2) return;
  const element address(out, "PstlAdr", left_out_when_empty);
  for (const address_element& part : address_elements(schema)) {
    out.optional_escaped(part.name, tx.*part.value);
  }
}

}  // namespace tivex
