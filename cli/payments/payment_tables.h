// What the commands for payments share.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "payments/columns.h"
#include "payments/header_option.h"
#include "payments/rulebooks.h"

namespace tivex_program {

inline constexpr header_option name_option = {.flag = "--name",
                                              .placeholder = "NAME",
                                              .description = "Name of the account's holder",
                                              .set = tivex_setName,
                                              .required = true};
inline constexpr header_option message_id_option = {
    "--message-id", "ID", "Identifier of the message (default: made up)", tivex_setMessageId};
inline constexpr header_option category_purpose_option = {
    "--category-purpose",     "CODE",     "What all payments are for, such as SALA for salaries",
    tivex_setCategoryPurpose, text_fault, newest_rulebook};

// Those that are described by what the account is for.
constexpr header_option own_iban_option(const char* description) {
  return {.flag = "--iban",
          .placeholder = "IBAN",
          .description = description,
          .set = tivex_setIBAN,
          .required = true,
          .form = value_form::code};
}
constexpr header_option own_bic_option(const char* description) {
  return {.flag = "--bic",
          .placeholder = "BIC",
          .description = description,
          .set = tivex_setBIC,
          .form = value_form::code};
}
constexpr header_option date_option(const char* description) {
  return {.flag = "--date",
          .placeholder = "DATE",
          .description = description,
          .set = tivex_setDate,
          .rule = date_fault,
          .form = value_form::date};
}

// The columns of every payment.
inline constexpr std::array shared_columns = {
    column{.key = "iban", .form = value_form::code},
    column{"name"},
    column{.key = "amount", .form = value_form::amount},
    column{"ref"},
    column{.key = "bic", .form = value_form::code},
    column{"date", date_fault, {}, value_form::date},
    column{"id", unescaped_fault},
    column{"addrCC"},
    column{"addrLine1"},
    column{"addrLine2"},
    column{"addrDept", text_fault, structured_rulebooks},
    column{"addrSubDept", text_fault, structured_rulebooks},
    column{"addrStreet", text_fault, structured_rulebooks},
    column{"addrNum", text_fault, structured_rulebooks},
    column{"addrBldg", text_fault, structured_rulebooks},
    column{"addrFloor", text_fault, structured_rulebooks},
    column{"addrPoBox", text_fault, structured_rulebooks},
    column{"addrRoom", text_fault, structured_rulebooks},
    column{"addrCode", text_fault, structured_rulebooks},
    column{"addrTown", text_fault, structured_rulebooks},
    column{"addrLoc", text_fault, structured_rulebooks},
    column{"addrDstrct", text_fault, structured_rulebooks},
    column{"addrCtrySub", text_fault, structured_rulebooks},
    column{"cref", text_fault, newest_rulebooks},
    column{"ultmtDbtr", text_fault, newest_rulebooks},
    column{"ultmtCdtr", text_fault, newest_rulebooks},
    column{"instrId", text_fault, newest_rulebooks},
};

// Returns a command's own columns and behind them the shared ones.
template <std::size_t count>
constexpr auto with_shared_columns(const std::array<column, count>& own) {
  std::array<column, count + shared_columns.size()> all{};
  std::copy(own.begin(), own.end(), all.begin());
  std::copy(shared_columns.begin(), shared_columns.end(), all.begin() + count);
  return all;
}

}  // namespace tivex_program
