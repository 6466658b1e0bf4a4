// What may be meant otherwise in a payment that the library takes.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "warnings/calendar.h"

namespace tivex_program {

// What holds for all payments of a file.
struct order_facts {
  bool collects = false;  // direct debits
  calendar_day today;
  std::string own_iban;
};

// What a row says of one payment; texts are empty where it says nothing.
struct payment_facts {
  std::string_view iban;
  std::string_view bic;
  std::optional<calendar_day> date;
  std::optional<calendar_day> signed_on;
};

// A rule tells what is odd, and nothing where nothing is. It is named for those who leave
// it out.
struct warning_rule {
  const char* name;
  const char* key;  // the column whose value it is about
  std::string (*text)(const payment_facts& payment, const order_facts& order);
};

// Those on the day of a payment alone, and all others on one row.
extern const std::span<const warning_rule> date_rules;
extern const std::span<const warning_rule> row_rules;

// The names of the rules that look at more than one row, or at none.
inline constexpr const char* repeated_payment = "repeated-payment";
inline constexpr const char* mandate_accounts = "mandate-accounts";
inline constexpr const char* old_directory = "old-directory";
inline constexpr const char* unknown_bank = "unknown-bank";

// Why the edition of the directory, which begins with its date, is too old; empty when it is not.
std::string directory_warning(std::string_view edition, calendar_day today);

// All names, for texts.
std::string warning_names();

bool is_warning_name(std::string_view name);

}  // namespace tivex_program
