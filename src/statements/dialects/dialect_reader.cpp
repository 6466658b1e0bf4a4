#include "statements/dialects/dialect_reader.h"

#include "core/number_scanner.h"
#include "statements/append_entry.h"
#include "statements/dialects/dialect_balance.h"
#include "statements/dialects/dialect_entry.h"
#include "statements/dialects/information_form.h"
#include "statements/text_steps.h"

namespace tivex {

bool dialect_reader::read() {
  while (lines_.step()) {
    if (!read_line()) return false;
  }
  return finish_entry();
}

bool dialect_reader::read_line() {
  if (lines_.ends_statement()) {
    if (!finish_entry()) return false;
    statement_ = nullptr;
  }
  if (lines_.tag() == tag_meaning::none) {
    // Blocks of SWIFT may stand in front of a tag 20, and anything before the first one.
    const bool looks_within = statement_ == nullptr && (!any_tag_ || lines_.begins_block());
    if (!looks_within || !lines_.begin_at_reference()) return true;
  }
  any_tag_ = true;
  return read_tag();
}

bool dialect_reader::open_statement() {
  statement_ = parser_.append_statement();
  return statement_ != nullptr;
}

bool dialect_reader::finish_entry() {
  if (entry_ == nullptr) return true;
  const bool done = texts_.lay_out(parser_.records);
  entry_ = nullptr;
  return done;
}

bool dialect_reader::read_tag() {
  const tag_meaning tag = lines_.tag();
  if (tag == tag_meaning::reference) {
    if (!finish_entry() || !open_statement()) return false;
    read_reference();
    return true;
  }
  if (statement_ == nullptr) {
    const bool opens = tag == tag_meaning::account || tag == tag_meaning::statement_number ||
                       tag == tag_meaning::opening_balance || tag == tag_meaning::entry;
    if (!opens) return true;
    if (!open_statement()) return false;
  }
  const balance_members opening = {statement_->opening_date, statement_->opening_currency,
                                   statement_->opening_balance};
  const balance_members closing = {statement_->closing_date, statement_->closing_currency,
                                   statement_->closing_balance};
  switch (tag) {
    case tag_meaning::entry:
      return read_entry();
    case tag_meaning::information:
      read_information();
      return true;
    case tag_meaning::addition:
      read_addition();
      return true;
    case tag_meaning::account:
      read_account();
      return true;
    case tag_meaning::statement_number:
      read_statement_number();
      return true;
    case tag_meaning::opening_balance:
      read_dialect_balance(lines_.value(), lines_.end(), opening);
      return true;
    case tag_meaning::closing_balance:
      read_dialect_balance(lines_.value(), lines_.end(), closing);
      return finish_entry();
    case tag_meaning::sums:
      return finish_entry();
    default:
      return true;
  }
}

void dialect_reader::read_reference() {
  statement_->reference = lines_.value();
  *lines_.end() = '\0';
}

void dialect_reader::read_account() {
  statement_->account = lines_.value();
  *lines_.end() = '\0';
}

void dialect_reader::read_statement_number() {
  number_scanner scanner(between(lines_.value(), lines_.end()));
  if (!scanner.read_unsigned(statement_->statement_no)) return;
  statement_->sequence_no = 0;
  if (scanner.skip('/')) scanner.read_unsigned(statement_->sequence_no);
}

bool dialect_reader::read_entry() {
  if (!finish_entry()) return false;
  dialect_entry line(lines_.value(), lines_.end());
  if (line.is_expected()) {
    ++parser_.pending;
    return true;
  }
  entry_ = append_entry(parser_.records, *statement_);
  if (entry_ == nullptr) return false;
  line.fill(*entry_);
  texts_.begin(*entry_);
  structured_.begin_entry();
  if (lines_.text_follows()) {
    lines_.step();
    char* const text = lines_.begin();
    texts_.set_second_line(text, lines_.join_following(true));
  }
  return true;
}

void dialect_reader::read_addition() {
  if (entry_ == nullptr) return;
  char* const text = lines_.value();
  texts_.add_lines_to_purpose(text, lines_.join_following(true));
}

void dialect_reader::read_information() {
  if (entry_ == nullptr) return;
  char* const field = lines_.value();
  switch (form_of_information(field)) {
    case information_form::structured:
      return structured_.read(*entry_, field, lines_.join_following(false));
    case information_form::words:
      return words_.read(field, lines_.join_following(false));
    case information_form::plain:
      return texts_.add_lines_to_purpose(field, lines_.join_following(true));
  }
}

}  // namespace tivex
