#include "statements/camt/record.h"

#include <cstring>

#include "statements/append_entry.h"
#include "statements/camt/dates_and_signs.h"
#include "statements/camt/exact_amount.h"
#include "statements/camt/joined_text.h"
#include "statements/camt/other_side.h"

namespace tivex {

namespace {

bool is(const char* text, const char* wanted) {
  return text != nullptr && std::strcmp(text, wanted) == 0;
}

bool is_reversal(const entry_value& entry) {
  return is(entry.reversal, "true") || is(entry.reversal, "1");
}

bool is_debit_of(const entry_value& entry, const transaction_value& transaction) {
  return is_debit(first_of(transaction.indicator, entry.indicator));
}

// Whether two amounts have the same currency and number, however the number is written.
bool are_same(const money_value& left, const money_value& right) {
  if (left.text == nullptr || right.text == nullptr) return false;
  if (currency_of(left) != currency_of(right)) return false;
  exact_amount left_amount;
  exact_amount right_amount;
  const amount_form left_form = read_amount(left.number, left_amount);
  const amount_form right_form = read_amount(right.number, right_amount);
  if (left_form == amount_form::exact && right_form == amount_form::exact) {
    return left_amount.digits == right_amount.digits && left_amount.places == right_amount.places;
  }
  return std::strcmp(left.number, right.number) == 0;
}

constexpr transaction_value no_transaction{};

}  // namespace

const money_value& own_amount(const transaction_value& transaction) {
  return transaction.amount.text != nullptr ? transaction.amount : transaction.stated_amount;
}

bool entry_records::append(const transaction_value* transaction) {
  const bool has_one = transaction != nullptr;
  tivex_stmt_tx_t* const record = append_part(
      {has_one ? *transaction : no_transaction, entry_.amount, is_debit(entry_.indicator)});
  if (record != nullptr && !has_one) record->purpose = entry_.information;
  return record != nullptr;
}

bool entry_records::add_up(const kept_transaction* transactions) const {
  exact_amount whole;
  if (read_amount(entry_.amount.number, whole) != amount_form::exact) return false;
  amount_sum sum;
  for (; transactions != nullptr; transactions = transactions->next) {
    const money_value& own = own_amount(transactions->value);
    exact_amount amount;
    if (read_amount(own.number, amount) != amount_form::exact) return false;
    if (currency_of(own) != currency_of(entry_.amount)) return false;
    sum.add(amount, is_debit_of(entry_, transactions->value) != is_debit(entry_.indicator));
  }
  return sum.is(whole);
}

bool entry_records::append_each(const kept_transaction* transactions) {
  for (; transactions != nullptr; transactions = transactions->next) {
    const transaction_value& each = transactions->value;
    if (append_part({each, own_amount(each), is_debit_of(entry_, each)}) == nullptr) return false;
  }
  return true;
}

tivex_stmt_tx_t* entry_records::append_part(const part& of) {
  tivex_stmt_tx_t* const record = append_entry(parser_.records, statement_);
  if (record == nullptr) return nullptr;
  const transaction_value& transaction = of.transaction;
  fill_dates(*record);
  fill_amounts(*record, of);
  fill_code(*record, transaction);
  fill_references(*record, transaction);
  // Money that comes in is the debtor's, unless it is money that comes back.
  const bool comes_back = is_reversal(entry_) || transaction.is_return;
  const sides of_debit{transaction.creditor, transaction.debtor};
  const sides of_credit{transaction.debtor, transaction.creditor};
  fill_other_side(*record, of.is_debit != comes_back ? of_debit : of_credit, own_account_);
  return fill_joined_texts(*record, transaction) ? record : nullptr;
}

void entry_records::fill_dates(tivex_stmt_tx_t& record) const {
  record.value_date = read_date(entry_.value_date);
  record.booking_date = read_date(entry_.booking_date);
  if (!is_set(record.value_date)) record.value_date = record.booking_date;
  if (!is_set(record.booking_date)) record.booking_date = record.value_date;
}

void entry_records::fill_amounts(tivex_stmt_tx_t& record, const part& of) const {
  const bool reversal = is_reversal(entry_);
  record.reversal = reversal ? 1 : 0;
  record.amount = with_sign(amount_of(of.amount.number), of.is_debit != reversal);
  const money_value& instructed = of.transaction.instructed;
  if (!are_same(instructed, of.amount)) record.oamt = instructed.text;
  const charges_value& own = of.transaction.charges;
  const charges_value& whole = entry_.charges;
  record.coam = first_of(own.of_record.text, own.amount.text, own.total.text, whole.of_record.text,
                         whole.amount.text, whole.total.text);
}

void entry_records::fill_code(tivex_stmt_tx_t& record, const transaction_value& transaction) const {
  char* const own = transaction.code.proprietary;
  const bank_transaction_code code = own != nullptr ? read_bank_code(own) : entry_code_;
  std::memcpy(record.type_code, code.type, sizeof record.type_code);
  record.gvc = code.business_code;
  record.primanota = code.primanota;
  record.text_key_ext = code.text_key_extension;
}

void entry_records::fill_references(tivex_stmt_tx_t& record,
                                    const transaction_value& transaction) const {
  record.customer_ref = entry_.reference;
  record.bank_ref = first_of(transaction.bank_ref, entry_.bank_ref);
  if (!is(transaction.end_to_end, "NOTPROVIDED")) record.eref = transaction.end_to_end;
  record.mref = transaction.mandate;
  record.kref = first_of(transaction.payment, entry_.batch);
  const party_value& creditor = transaction.creditor.party;
  const party_value& debtor = transaction.debtor.party;
  record.cred = first_of(creditor.person, creditor.organisation);
  record.debt = first_of(debtor.person, debtor.organisation);
  record.purp = transaction.purpose;
  const ultimate_value& payer = transaction.ultimate_debtor;
  const ultimate_value& payee = transaction.ultimate_creditor;
  record.abwa = first_of(payer.name, payer.inner_name);
  record.abwe = first_of(payee.name, payee.inner_name);
}

bool entry_records::fill_joined_texts(tivex_stmt_tx_t& record,
                                      const transaction_value& transaction) {
  record_blocks& records = parser_.records;
  record.booking_text = first_of(entry_.information, transaction.information);
  if (record.booking_text == nullptr) {
    const code_value& own = transaction.code;
    const bool has_own = first_of(own.domain, own.family, own.sub_family) != nullptr;
    const code_value& code = has_own ? own : entry_.code;
    joined_text codes(records, '-');
    codes.add(code.domain).add(code.family).add(code.sub_family);
    if (!codes.finish(record.booking_text)) return false;
  }
  joined_text remittance(records, '\n');
  remittance.add(transaction.remittance)
      .add(transaction.references)
      .add(transaction.further_remittance);
  joined_text reason(records, ' ');
  reason.add(first_of(transaction.return_code, transaction.return_text))
      .add(transaction.return_information);
  return remittance.finish(record.svwz) && reason.finish(record.return_reason);
}

}  // namespace tivex
