#include "commands/direct_debit.h"

#include <tivex.h>

#include <algorithm>

#include "payments/document_room.h"
#include "payments/payment_tables.h"

namespace tivex_program {
namespace {

constexpr std::string_view local_instruments[] = {"CORE", "COR1", "B2B"};

std::string local_instrument_fault(std::string_view value) {
  const bool known = std::ranges::find(local_instruments, value) != std::end(local_instruments);
  return known ? "" : "unknown type '" + std::string(value) + "' (known: CORE, COR1, B2B)";
}

int set_local_instrument(tivex_t* message, const char* value) {
  const auto* const found = std::ranges::find(local_instruments, std::string_view(value));
  return tivex_setDDType(message, static_cast<int>(found - std::begin(local_instruments)));
}

constexpr header_option options[] = {
    name_option,
    own_iban_option("Account that the collections are made for"),
    own_bic_option("The account's bank; needed under all rulebooks but DE-26.11"),
    {.flag = "--creditor-id",
     .placeholder = "ID",
     .description = "Creditor identifier",
     .set = tivex_setCreditorIdentifier,
     .rule = unescaped_fault,
     .required = true,
     .form = value_form::code},
    {"--type", "TYPE", "CORE (default), COR1 or B2B", set_local_instrument, local_instrument_fault},
    date_option("Collection date of lines without one (default: today)"),
    category_purpose_option,
    message_id_option,
};

constexpr auto columns = with_shared_columns(std::array{
    column{"seq"},
    column{"mref", unescaped_fault},
    column{"mdate", date_fault, {}, value_form::date},
    column{"old_mref", unescaped_fault},
    column{.key = "old_iban", .form = value_form::code},
    column{"smnda"},
});

constexpr const char* example = R"(Example:
  tivex direct-debit --name "Sportverein Beispiel" \
      --iban DE89370400440532013000 --bic COBADEFFXXX \
      --creditor-id DE98ZZZ09999999999 --date 2026-12-01 -o fees.xml fees.csv

with the fees.csv

  iban,name,amount,seq,mref,mdate,ref
  AT611904300234573201,Erika Muster,48.00,RCUR,M-1001,2024-03-01,Beitrag Nr. 7
  NL91ABNA0417164300,Jörg Beispiel,96.00,FRST,M-1002,2026-11-02,Beitrag Nr. 8

writes fees.xml and prints

  rows            2
  table           comma, UTF-8, decimal point
  columns         iban, name, amount, seq, mref, mdate, ref
  transactions    2
  sum             144.00 EUR
  payment blocks  2
  rulebook        DE-26.11 (pain.008.001.08)
  schema          meets pain.008.001.08 (German subset)
  by date         2026-12-01  144.00 EUR (2)
  file            fees.xml)";

}  // namespace

constinit const payment_command direct_debit = {
    .name = "direct-debit",
    .description = "Write a direct debit document (pain.008) from a CSV file",
    .example = example,
    .options = options,
    .transactions = {.message_type = TIVEX_DIRECT_DEBIT,
                     .columns = columns,
                     .least_bytes = least_direct_debit},
};

}  // namespace tivex_program
