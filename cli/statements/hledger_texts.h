#pragma once

#include <string>
#include <string_view>

#include "statements/statement_date.h"

namespace tivex_program {

// Texts of a journal of hledger. What has a meaning there becomes another character.

// The description of a transaction: "NAME | TEXT", or what there is of it.
std::string journal_description(const std::string& name, const std::string& text);

// A tag's value ends at a comma.
std::string journal_tag_value(std::string text);

// A day of the calendar: banks have a 30th of February, a journal has none.
std::string journal_date(const statement_date& date);

// With two decimals, or as many more as it has, and the currency behind it.
std::string journal_amount(double amount, const std::string& currency);

// Whether it has two decimals at most.
bool is_of_cents(double amount);

// Why a name cannot be that of an account, empty when it can.
std::string account_name_fault(std::string_view name);

}  // namespace tivex_program
