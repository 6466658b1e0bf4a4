// What each call accepts, and why it refuses what it does not: tests/data/calls.tsv.

#include <gtest/gtest.h>

#include "support/messages.h"
#include "support/runtime_control.h"
#include "support/table.h"
#include "transactions/credit_transfer.h"

namespace {

// A failing call leaves the message as it was, a call without a message does
// nothing, and an earlier error neither matters nor goes.
void expect_outcome(int type, const std::string& rulebook, const row& columns) {
  const std::string function = columns[2].str();
  const std::string error = columns[4].str();
  const message_ptr msg = new_message(type, rulebook);
  ASSERT_TRUE(add(msg) == 1 && call(msg, "setDate", "") == 0);
  EXPECT_EQ(call(msg, function, columns[3].c_str()), error.empty() ? 1 : 0);
  EXPECT_EQ(error_of(msg), error.empty() ? "Invalid date" : error);
  const bool added = error.empty() && function.starts_with("add");
  EXPECT_EQ(msg->tx_count, added ? 2u : 1u);
  EXPECT_EQ(msg->first == msg->last, !added);
  EXPECT_EQ(msg->control_sum > 12.5, added);
  if (function.starts_with("set")) {
    EXPECT_EQ(call(nullptr, function, columns[3].c_str()), 0);
  }
}

}  // namespace

TEST(Calls, AcceptOrSayWhyNot) {
  for (const row& columns : read_table("calls.tsv", 5)) {
    const std::string books = columns[1].str();
    for (const std::string& rulebook : books == "all" ? all_rulebooks : split(books, " ")) {
      for (const std::string& type : split(columns[0].str(), " ")) {
        SCOPED_TRACE(type + " " + rulebook + " " + columns[2].str() + " " + columns[3].str());
        expect_outcome(type == "CT" ? TIVEX_CREDIT_TRANSFER : TIVEX_DIRECT_DEBIT, rulebook,
                       columns);
      }
    }
  }
}

TEST(Calls, KeepTheEarlierValueUnlessItsSuccessorCannotBeCopied) {
  const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER);
  const struct {
    const char* function;
    tivex::owned_text tivex::message::*field;
    const char* given;
    const char* stored;
    const char* exhausted;
  } rows[] = {
      {"setIBAN", &tivex_t::iban, "NO9386011117947", "NO9386011117947", "strdup() failed"},
      {"setBIC", &tivex_t::bic, "deutDeff", "DEUTDEFF", "tivex_setBIC: strdup() failed"},
      {"setName", &tivex_t::name, "Name", "Name", "tivex_setName: strdup() failed"},
      {"setCreditorIdentifier", &tivex_t::creditor_id, "de98ZZZ09999999999", "de98ZZZ09999999999",
       "strdup() failed"},
      {"setDate", &tivex_t::date, "2024-04-17", "2024-04-17", "strdup() failed"},
      {"setMessageId", &tivex_t::message_id, "M 1", "M 1", "strdup() failed"},
  };
  for (const auto& r : rows) {
    const tivex::owned_text& field = msg.get()->*r.field;
    EXPECT_EQ(call(msg, r.function, r.given), 1);
    EXPECT_EQ(call(msg, r.function, "_"), 0);
    EXPECT_STREQ(field.c_str(), r.stored);
    const runtime_control::failing_allocation failing(1);
    EXPECT_EQ(call(msg, r.function, r.given), 0);
    EXPECT_EQ(error_of(msg), r.exhausted);
    EXPECT_FALSE(field);
  }
  EXPECT_EQ(call(msg, "setBatchBooking", "0") + call(msg, "setBatchBooking", "2"), 1);
  EXPECT_EQ(msg->batch_booking, 0);
}

TEST(Calls, TakeTheLastValueOfAKeyAndAddUp) {
  const message_ptr transfer = new_message(TIVEX_CREDIT_TRANSFER, "DE-3.5");
  ASSERT_EQ(add(transfer, {{"NAME", "Eva"}, {"name", "Adam"}, {"AMOUNT", "0.1"}}), 1);
  EXPECT_STREQ(transfer->last->name.c_str(), "Adam") << "the last value counts";
  for (const char* const amount : {"0.2", "12.345"})
    ASSERT_EQ(add(transfer, {{"amount", amount}}), 1);
  EXPECT_DOUBLE_EQ(transfer->control_sum, 12.65);
  EXPECT_EQ(tivex::first_transaction<tivex::ct_transaction>(*transfer)->next->amount, 0.2);
}

TEST(Calls, NeedAListAndAMessage) {
  const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER);
  EXPECT_EQ(tivex_add(msg.get(), nullptr), 0);
  EXPECT_EQ(error_of(msg), "No key-value list submitted");
  const tivex_keyvalue_t empty[] = {{nullptr, nullptr}};
  EXPECT_EQ(tivex_add(nullptr, empty), 0);
  EXPECT_EQ(tivex_toXML(nullptr), nullptr);
  for (const int type : {-1, 0, 3}) EXPECT_EQ(tivex_new(type), nullptr);
  tivex_free(nullptr);
  msg->type = TIVEX_DIRECT_DEBIT;
  EXPECT_FALSE(tivex::cti_add(*msg, empty));
  EXPECT_EQ(error_of(msg), "No CTI message");
}
