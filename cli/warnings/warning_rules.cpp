#include "warnings/warning_rules.h"

#include <tivex.h>

#include <algorithm>
#include <vector>

#include "banks/given_up_bank.h"

namespace tivex_program {
namespace {

std::string past_date(const payment_facts& payment, const order_facts& order) {
  return *payment.date < order.today ? text_of(*payment.date) + " is in the past" : std::string();
}

std::string distant_date(const payment_facts& payment, const order_facts& order) {
  if (*payment.date <= year_after(order.today)) return {};
  return text_of(*payment.date) + " is more than a year ahead";
}

std::string weekend_date(const payment_facts& payment, const order_facts&) {
  const char* const name = weekend_name(*payment.date);
  return name == nullptr ? "" : text_of(*payment.date) + " is " + name;
}

std::string holiday_date(const payment_facts& payment, const order_facts&) {
  const char* const name = target_holiday(*payment.date);
  return name == nullptr ? "" : text_of(*payment.date) + " is a TARGET holiday (" + name + ")";
}

std::string early_debit(const payment_facts& payment, const order_facts& order) {
  if (!order.collects || *payment.date != order.today) return {};
  return text_of(*payment.date) + " is today: banks collect from tomorrow on";
}

std::string late_signature(const payment_facts& payment, const order_facts&) {
  if (!payment.signed_on || !payment.date || *payment.signed_on <= *payment.date) return {};
  return "the mandate is signed on " + text_of(*payment.signed_on) + ", after the collection on " +
         text_of(*payment.date);
}

std::string own_account(const payment_facts& payment, const order_facts& order) {
  return payment.iban == order.own_iban ? "the other side has the message's own account" : "";
}

// A bank has BICs of its branches, too, which differ behind the first eight characters.
constexpr std::size_t bank_part = 8;

std::string other_bank(const payment_facts& payment, const order_facts&) {
  char bic[12] = "";
  if (payment.bic.size() < bank_part ||
      tivex_iban_getBIC(std::string(payment.iban).c_str(), bic) != 1 || *bic == '\0') {
    return {};
  }
  const auto capital = [](char c) {
    return 'a' <= c && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  };
  const std::string_view known(bic);
  const bool same = std::equal(known.begin(), known.begin() + bank_part, payment.bic.begin(),
                               [&](char a, char b) { return a == capital(b); });
  if (same) return {};
  return std::string(payment.bic) + " is not the IBAN's bank by the directory (" + bic + ")";
}

std::string deleted_bank(const payment_facts& payment, const order_facts&) {
  const std::string_view bank_code = german_bank_code(payment.iban);
  if (bank_code.empty()) return {};
  const given_up_bank bank = given_up_bank_of(bank_code);
  if (!bank.deleted && bank.successor.empty()) return {};
  const std::string code = "bank code " + std::string(bank_code);
  if (bank.successor.empty()) return code + " is marked for deletion, without a successor";
  const std::string iban = successor_iban(payment.iban);
  return code + " has passed to " + bank.successor +
         (iban.empty() ? "" : ": the IBAN is now " + iban);
}

constexpr warning_rule rules_of_dates[] = {{"past-date", "date", past_date},
                                           {"distant-date", "date", distant_date},
                                           {"weekend", "date", weekend_date},
                                           {"holiday", "date", holiday_date},
                                           {"early-debit", "date", early_debit}};

constexpr warning_rule rules_of_rows[] = {{"late-signature", "mdate", late_signature},
                                          {"own-account", "iban", own_account},
                                          {"other-bank", "bic", other_bank},
                                          {"deleted-bank", "iban", deleted_bank}};

constexpr const char* further_names[] = {repeated_payment, mandate_accounts, old_directory,
                                         unknown_bank};

std::vector<std::string_view> all_names() {
  std::vector<std::string_view> names;
  for (const warning_rule& rule : rules_of_dates) names.emplace_back(rule.name);
  for (const warning_rule& rule : rules_of_rows) names.emplace_back(rule.name);
  names.insert(names.end(), std::begin(further_names), std::end(further_names));
  return names;
}

}  // namespace

const std::span<const warning_rule> date_rules = rules_of_dates;
const std::span<const warning_rule> row_rules = rules_of_rows;

std::string directory_warning(std::string_view edition, calendar_day today) {
  constexpr std::size_t length_of_date = 10;
  const std::optional<calendar_day> from = day_of(edition.substr(0, length_of_date));
  if (!from || today <= year_after(*from)) return {};
  return "the bank directory is of " + text_of(*from) +
         ", more than a year old: newer banks are not in it";
}

std::string warning_names() {
  std::string text;
  for (const std::string_view name : all_names())
    text.append(text.empty() ? "" : ", ").append(name);
  return text;
}

bool is_warning_name(std::string_view name) {
  const std::vector<std::string_view> names = all_names();
  return std::ranges::find(names, name) != names.end();
}

}  // namespace tivex_program
