#include "xml/parties.h"

#include <array>
#include <span>

namespace tivex {

namespace {

struct address_element {
  std::string_view name;
  owned_text transaction::*value;
};

constexpr std::array<address_element, 16> hybrid_elements = {{
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
    {"AdrLine", &transaction::addr_line1},
    {"AdrLine", &transaction::addr_line2},
}};

std::span<const address_element> address_elements(const document_schema& schema) {
  constexpr std::size_t lines = 2;
  const std::span<const address_element> all = hybrid_elements;
  if (schema.hybrid_address) return all;
  return schema.structured_address ? all.first(all.size() - lines) : all.last(lines + 1);
}

}  // namespace

void write_creditor_reference(document_writer& out, const owned_text& reference) {
  const element structured(out, "Strd");
  const element information(out, "CdtrRefInf");
  {
    const element type(out, "Tp");
    {
      const element code(out, "CdOrPrtry");
      out.fixed("Cd", "SCOR");
    }
    out.fixed("Issr", "ISO");
  }
  out.value("Ref", reference.c_str());
}

void write_address(document_writer& out, const document_schema& schema, const transaction& tx) {
  const bool placed = tx.addr_country || tx.addr_town;
  if (!placed && !tx.addr_line1 && !tx.addr_line2) return;
  // The schema has no place for parts alone, which lines bring in the prescribed form.
  if (!placed && out.strict() && schema.structured_address) return;
  const element address(out, "PstlAdr", left_out_when_empty);
  for (const address_element& part : address_elements(schema)) {
    out.optional_escaped(part.name, tx.*part.value);
  }
}

}  // namespace tivex
