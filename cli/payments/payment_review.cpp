#include "payments/payment_review.h"

#include <tivex.h>

#include <algorithm>
#include <limits>
#include <utility>

#include "payments/admitted_text.h"
#include "payments/amount_cents.h"

namespace tivex_program {
namespace {

std::string text_of_unknown_bank(std::string_view iban) {
  constexpr std::size_t start = 4;
  constexpr std::size_t length = 8;
  return "bank code " + std::string(iban.substr(start, length)) + " is not in the directory";
}

constexpr std::string_view names_of_columns[] = {"iban", "name", "amount", "ref",  "bic",
                                                 "date", "mref", "mdate",  "cref", "old_iban"};

}  // namespace

payment_review::payment_review(const review_wishes& wishes, const payment_header& header,
                               fault_extent extent)
    : wishes_(wishes),
      notes_(extent),
      characters_(header.message_type, header.strict),
      rows_(!wishes.report.empty()) {
  order_.collects = header.message_type == TIVEX_DIRECT_DEBIT;
  order_.today = wishes.today ? *wishes.today : today();
  order_.own_iban = own_iban(header);
  if (!header.true_iban.empty()) {
    stand_ins_.set_own(header.true_iban);
    notes_.warn({unknown_bank, "", "--iban", text_of_unknown_bank(header.true_iban)}, 0);
  }
  dates_.emplace(order_);
  header_date_ = given_value(header, "--date");
  has_header_date_ = !header_date_.empty() && header.has_own_date;
  // A debit without a date is collected today, which is too early; a transfer is just made.
  if (header_date_.empty()) header_date_ = text_of(order_.today);
}

void payment_review::set_columns(const file_columns& columns) {
  columns_ = columns;
  for (std::size_t which = 0; which < count; ++which) {
    places_[which] = place_of(columns, names_of_columns[which]);
  }
}

std::string_view payment_review::cell(const csv_row& row, known_column which) const {
  return places_[which] < row.cells.size() ? std::string_view(row.cells[places_[which]])
                                           : std::string_view();
}

void payment_review::prepare(csv_row& row, std::vector<row_fault>& faults) {
  if (row.cells.size() != columns_.size()) return;
  if (wishes_.transliterates) write_texts(row, faults);
  if (!wishes_.accepts_unknown_banks) return;
  for (const known_column which : {iban, old_iban}) {
    if (places_[which] < row.cells.size()) accept_bank(row, which, faults);
  }
}

void payment_review::write_texts(csv_row& row, std::vector<row_fault>& faults) {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (columns_[i].known == nullptr || row.cells[i].empty()) continue;
    const std::string_view key = columns_[i].known->key;
    if (!admitted_characters::is_text(key)) continue;
    const std::string before = row.cells[i];
    switch (write_with_admitted(row.cells[i], key, characters_)) {
      case rewriting::nothing_left:
        faults.push_back({.key = std::string(key), .reason = nothing_is_left});
        break;
      case rewriting::changed:
        notes_.change({row.line, columns_[i].name, std::string(key), before, row.cells[i]});
        row.changed.push_back({i, before});
        break;
      case rewriting::kept:
        break;
    }
  }
}

void payment_review::accept_bank(csv_row& row, known_column which, std::vector<row_fault>& faults) {
  std::string& given = row.cells[places_[which]];
  const std::string key(names_of_columns[which]);
  if (unknown_banks::is_stand_in(given)) {
    faults.push_back(
        {.key = key, .reason = "an IBAN of this bank stands for those of unknown banks"});
  } else if (stand_ins_.replace(given)) {
    warn(unknown_bank, row.line, key, text_of_unknown_bank(stand_ins_.of(given)));
  }
}

void payment_review::take(const csv_row& row) {
  const std::string_view given_date = cell(row, date);
  payment_date& day = dates_->of(given_date.empty() ? header_date_ : given_date);
  payment_facts facts{stand_ins_.of(cell(row, iban)), cell(row, bic), day.day, {}};
  if (const std::string_view signature = cell(row, mdate); !signature.empty()) {
    facts.signed_on = day_of(signature);
  }
  if (given_date.empty()) {
    tell_header_date(day);
  } else {
    for (const date_warning& each : day.warnings) {
      warn(each.rule->name, row.line, each.rule->key, each.text);
    }
  }
  for (const warning_rule& rule : row_rules) {
    std::string text = rule.text(facts, order_);
    if (!text.empty()) warn(rule.name, row.line, rule.key, std::move(text));
  }
  const std::int64_t cents = amount_cents(cell(row, amount));
  compare_with_others(row, facts.iban, cents);
  ++day.sum.payments;
  day.sum.cents += cents;
  if (!rows_.wanted()) return;
  const std::string_view text = cell(row, ref);
  rows_.add({cell(row, name), facts.iban, text.empty() ? cell(row, cref) : text, day.text, cents});
}

void payment_review::tell_header_date(const payment_date& day) {
  if (header_date_told_) return;
  header_date_told_ = true;
  if (!has_header_date_ && !order_.collects) return;
  for (const date_warning& each : day.warnings) {
    // Who named no day has not chosen a wrong one.
    if (!has_header_date_ && std::string_view(each.rule->name) != "early-debit") continue;
    warn(each.rule->name, 0, "--date", each.text);
  }
}

void payment_review::compare_with_others(const csv_row& row, std::string_view true_iban,
                                         std::int64_t cents) {
  constexpr std::size_t highest = std::numeric_limits<std::uint32_t>::max();
  const auto line = static_cast<std::uint32_t>(std::min(row.line, highest));
  const std::uint64_t account = text_number(true_iban);
  if (!is_left_out(repeated_payment)) {
    const std::uint64_t text = text_number(cell(row, ref), text_number(cell(row, cref), account));
    payments_.add({mixed(text, static_cast<std::uint64_t>(cents)), line, 0}, warn_of_repetition());
  }
  const std::string_view mandate = cell(row, mref);
  if (mandate.empty()) return;
  mandates_.add({text_number(mandate), line, static_cast<std::uint32_t>(account)},
                warn_of_accounts());
}

void payment_review::finish() {
  payments_.finish(warn_of_repetition());
  mandates_.finish(warn_of_accounts());
  std::string text = directory_warning(tivex_edition_str, order_.today);
  if (!text.empty()) warn(old_directory, 0, "", std::move(text));
  notes_.sort();
}

bool payment_review::is_left_out(std::string_view rule) const {
  return std::ranges::find(wishes_.left_out, rule) != wishes_.left_out.end();
}

void payment_review::warn(const char* rule, std::size_t line, std::string_view key,
                          std::string text) {
  if (is_left_out(rule)) return;
  const std::size_t place = place_of(columns_, key);
  notes_.warn({rule, place < columns_.size() ? columns_[place].name : std::string(),
               std::string(key), std::move(text)},
              line);
}

}  // namespace tivex_program
