#include "commands/credit_transfer.h"

#include <tivex.h>

#include "payments/document_room.h"
#include "payments/payment_tables.h"

namespace tivex_program {
namespace {

int set_instant(tivex_t* message, const char* /*value*/) {
  return tivex_setCTType(message, TIVEX_CT_INSTANT);
}

constexpr header_option options[] = {
    name_option,
    own_iban_option("Account that the payments are made from"),
    own_bic_option("The account's bank; older German rulebooks ask for it"),
    date_option("Execution date of lines without one (default: today)"),
    {"--instant", nullptr, "Pay within seconds; with DE-26.11 only", set_instant},
    category_purpose_option,
    message_id_option,
};

constexpr auto columns = with_shared_columns(std::array{column{"purp", purpose_fault}});

constexpr const char* example = R"(Example:
  tivex credit-transfer --name "Beispiel GmbH" --iban DE89370400440532013000 \
      --bic COBADEFFXXX --date 2026-11-27 -o payroll.xml payroll.csv

with the payroll.csv

  iban,name,amount,ref,purp
  AT611904300234573201,Erika Muster,1850.40,"Gehalt November, Nr. 7",SALA
  DE89370400440532013000,Jörg Beispiel,1349.60,"Gehalt November, Nr. 8",SALA

writes payroll.xml and prints

  rows            2
  table           comma, UTF-8, decimal point
  columns         iban, name, amount, ref, purp
  transactions    2
  sum             3200.00 EUR
  payment blocks  1
  rulebook        DE-26.11 (pain.001.001.09)
  schema          meets pain.001.001.09 (German subset)
  by date         2026-11-27  3200.00 EUR (2)
  file            payroll.xml)";

}  // namespace

constinit const payment_command credit_transfer = {
    .name = "credit-transfer",
    .description = "Write a credit transfer document (pain.001) from a CSV file",
    .example = example,
    .options = options,
    .transactions = {.message_type = TIVEX_CREDIT_TRANSFER,
                     .columns = columns,
                     .least_bytes = least_credit_transfer},
};

}  // namespace tivex_program
