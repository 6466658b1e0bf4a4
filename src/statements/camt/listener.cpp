#include "statements/camt/listener.h"

#include <cstdint>
#include <cstring>
#include <string_view>

#include "statements/camt/joined_text.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

// 0 when it is none of 32 bits.
std::uint32_t number_of(const char* text) {
  if (text == nullptr) return 0;
  if (*text == '+') ++text;
  std::uint64_t number = 0;
  for (; is_digit(*text); ++text) {
    number = number * 10 + static_cast<unsigned>(*text - '0');
    if (number > UINT32_MAX) return 0;
  }
  return *text == '\0' ? static_cast<std::uint32_t>(number) : 0;
}

// The currency moves in front of the number; between them are a quotation mark and the tag's
// end at least.
money_value join_money(const element_text& text) {
  const std::size_t length = text.attribute == nullptr ? 0 : std::strlen(text.attribute);
  if (length != 0) std::memmove(text.text - length, text.attribute, length);
  return {text.text - length, text.text};
}

}  // namespace

void camt_listener::store(const place& element, const element_text& text) {
  void* const value = element.values + element.row->offset;
  switch (element.row->kept) {
    case keep::text: {
      char*& kept = *static_cast<char**>(value);
      if (kept == nullptr) kept = text.text;
      break;
    }
    case keep::money: {
      auto& kept = *static_cast<money_value*>(value);
      if (kept.text == nullptr) kept = join_money(text);
      break;
    }
    case keep::list:
      add_piece(*static_cast<text_list*>(value), text.text, text.text_end);
      break;
    case keep::nothing:
      break;
  }
}

bool camt_listener::begin_event(event happens) {
  switch (happens) {
    case event::message:
      has_message_ = true;
      value_.page = {};
      return true;
    case event::statement:
      value_.statement = {};
      balances_.begin_statement();
      return parser_.append_statement() != nullptr;
    case event::balance:
      value_.balance = {};
      return true;
    case event::entry:
      begin_entry();
      return true;
    case event::transaction:
      return begin_transaction();
    case event::returned:
      value_.transaction.is_return = true;
      return true;
    case event::none:
      break;
  }
  return true;
}

bool camt_listener::end_event(event happens) {
  switch (happens) {
    case event::statement:
      end_statement();
      return true;
    case event::balance:
      balances_.add(value_.balance, *parser_.last);
      return true;
    case event::entry:
      return end_entry();
    case event::transaction:
      return end_transaction();
    case event::message:
    case event::returned:
    case event::none:
      break;
  }
  return true;
}

void camt_listener::end_statement() {
  const statement_value& value = value_.statement;
  tivex_stmt_t& statement = *parser_.last;
  statement.reference = value.reference;
  statement.account = first_of(value.account.iban, value.account.other);
  statement.statement_no = number_of(first_of(value.electronic_number, value.legal_number));
  statement.sequence_no = number_of(first_of(value.page.number, value_.page.number));
  balances_.end_statement(statement);
}

void camt_listener::begin_entry() {
  value_.entry = {};
  transactions_ = 0;
  may_add_up_ = true;
}

bool camt_listener::end_entry() {
  const entry_value& entry = value_.entry;
  const char* const status = first_of(entry.status, entry.status_code);
  bool done = true;
  if (status != nullptr && std::string_view(status) != "BOOK") {
    ++parser_.pending;
  } else {
    const account_value& account = value_.statement.account;
    entry_records records(parser_, *parser_.last, first_of(account.iban, account.other), entry);
    if (transactions_ > 1 && may_add_up_ && records.add_up(first_kept_)) {
      done = records.append_each(first_kept_);
    } else {
      done = records.append(transactions_ == 1 ? &value_.transaction : nullptr);
    }
  }
  drop_transactions();
  return done;
}

// A second one tells that the first must be kept.
bool camt_listener::begin_transaction() {
  const bool kept = transactions_ != 1 || keep_transaction();
  value_.transaction = {};
  return kept;
}

bool camt_listener::end_transaction() { return ++transactions_ == 1 || keep_transaction(); }

// One without an amount tells that none must be kept.
bool camt_listener::keep_transaction() {
  if (own_amount(value_.transaction).text == nullptr) {
    may_add_up_ = false;
    drop_transactions();
  }
  if (!may_add_up_) return true;
  kept_transaction* kept = spare_;
  if (kept != nullptr) {
    spare_ = kept->next;
  } else {
    kept = blocks_.make<kept_transaction>();
    if (kept == nullptr) return false;
  }
  *kept = {value_.transaction, nullptr};
  (last_kept_ == nullptr ? first_kept_ : last_kept_->next) = kept;
  last_kept_ = kept;
  return true;
}

void camt_listener::drop_transactions() {
  if (last_kept_ == nullptr) return;
  last_kept_->next = spare_;
  spare_ = first_kept_;
  first_kept_ = nullptr;
  last_kept_ = nullptr;
}

}  // namespace tivex
