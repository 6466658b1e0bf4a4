#include "statements/statement_fields.h"

#include <ctime>
#include <optional>

#include "statements/statement_balance.h"

namespace tivex_program {
namespace {

field_value shown(const std::tm& date) {
  const std::optional<statement_date> present = date_of(date);
  return present ? field_value(*present) : field_value();
}

field_value shown(const char* text) {
  return text == nullptr || *text == '\0' ? field_value() : field_value(std::string_view(text));
}

field_value shown(double amount) { return amount; }
field_value shown(int number) { return std::int64_t{number}; }
field_value shown(unsigned number) { return std::int64_t{number}; }
field_value shown(unsigned char flag) { return flag != 0; }

template <auto member, typename record>
field_value value_of(const record& of) {
  return shown(of.*member);
}

// The amount with the sign that it has on the account.
field_value booked(const tivex_stmt_tx_t& entry) {
  return static_cast<double>(effect_of(entry)) / 100;
}

using statement = tivex_stmt_t;
using entry = tivex_stmt_tx_t;

constexpr record_field<statement> fields_of_statement[] = {
    {"reference", value_of<&statement::reference>},
    {"account", value_of<&statement::account>},
    {"statement_no", value_of<&statement::statement_no>},
    {"sequence_no", value_of<&statement::sequence_no>},
    {"opening_date", value_of<&statement::opening_date>},
    {"closing_date", value_of<&statement::closing_date>},
    {"opening_balance", value_of<&statement::opening_balance>},
    {"closing_balance", value_of<&statement::closing_balance>},
    {"opening_currency", value_of<&statement::opening_currency>},
    {"closing_currency", value_of<&statement::closing_currency>},
};

constexpr record_field<entry> fields_of_entry[] = {
    {"value_date", value_of<&entry::value_date>},
    {"booking_date", value_of<&entry::booking_date>},
    {"reversal", value_of<&entry::reversal>},
    {"amount", value_of<&entry::amount>},
    {"type_code", value_of<&entry::type_code>},
    {"customer_ref", value_of<&entry::customer_ref>},
    {"bank_ref", value_of<&entry::bank_ref>},
    {"booking_text", value_of<&entry::booking_text>},
    {"primanota", value_of<&entry::primanota>},
    {"gvc", value_of<&entry::gvc>},
    {"text_key_ext", value_of<&entry::text_key_ext>},
    {"bank_code", value_of<&entry::bank_code>},
    {"account_no", value_of<&entry::account_no>},
    {"name", value_of<&entry::name>},
    {"purpose", value_of<&entry::purpose>},
    {"eref", value_of<&entry::eref>},
    {"kref", value_of<&entry::kref>},
    {"mref", value_of<&entry::mref>},
    {"cred", value_of<&entry::cred>},
    {"debt", value_of<&entry::debt>},
    {"purp", value_of<&entry::purp>},
    {"coam", value_of<&entry::coam>},
    {"oamt", value_of<&entry::oamt>},
    {"svwz", value_of<&entry::svwz>},
    {"abwa", value_of<&entry::abwa>},
    {"abwe", value_of<&entry::abwe>},
    {"full_name", value_of<&entry::full_name>},
    {"return_reason", value_of<&entry::return_reason>},
    {"booked", booked},
};

}  // namespace

const std::span<const record_field<tivex_stmt_t>> statement_fields = fields_of_statement;
const std::span<const record_field<tivex_stmt_tx_t>> entry_fields = fields_of_entry;

}  // namespace tivex_program
