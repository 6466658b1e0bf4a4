// What the elements of a document say, as long as it is asked for: texts in the document,
// null where there was none. The table of elements tells which element says what.
#pragma once

namespace tivex {

// The text is the currency and the number without anything between.
struct money_value {
  char* text;
  char* number;
};

// Texts of elements that may come several times; see joined_text.h.
struct text_list {
  char* first;
  char* last;
};

struct account_value {
  char* iban;
  char* other;
};

struct date_value {
  char* date;
  char* date_time;
};

struct institution_value {
  char* name;
  char* bicfi;
  char* bic;
  char* member;
};

// A party stands by itself, or inside of an element that may hold an agent instead.
struct party_value {
  char* name;
  char* inner_name;
  char* person;
  char* organisation;
  institution_value agent;
};

struct ultimate_value {
  char* name;
  char* inner_name;
};

struct side_value {
  party_value party;
  account_value account;
  institution_value agent;
};

struct code_value {
  char* proprietary;
  char* domain;
  char* family;
  char* sub_family;
};

struct charges_value {
  money_value of_record;
  money_value amount;
  money_value total;
};

struct balance_value {
  char* code;
  char* indicator;
  money_value amount;
  date_value date;
};

struct page_value {
  char* number;
};

struct statement_value {
  char* reference;
  char* electronic_number;
  char* legal_number;
  page_value page;
  account_value account;
};

struct transaction_value {
  char* bank_ref;
  char* end_to_end;
  char* mandate;
  char* payment;
  char* indicator;
  money_value amount;
  money_value stated_amount;  // among the details of amounts
  money_value instructed;
  code_value code;
  charges_value charges;
  side_value debtor;
  side_value creditor;
  ultimate_value ultimate_debtor;
  ultimate_value ultimate_creditor;
  char* purpose;
  text_list remittance;
  text_list references;
  text_list further_remittance;
  char* return_code;
  char* return_text;
  text_list return_information;
  char* information;
  bool is_return;
};

struct entry_value {
  char* reference;
  char* indicator;
  char* reversal;
  char* status;
  char* status_code;
  char* bank_ref;
  money_value amount;
  date_value booking_date;
  date_value value_date;
  code_value code;
  charges_value charges;
  char* batch;
  char* information;
};

struct document_value {
  page_value page;
  statement_value statement;
  balance_value balance;
  entry_value entry;
  transaction_value transaction;
};

// The first text that there is; null when there is none.
template <class... texts>
char* first_of(char* first, texts... others) {
  if constexpr (sizeof...(others) == 0) {
    return first;
  } else {
    return first != nullptr ? first : first_of(others...);
  }
}

}  // namespace tivex
