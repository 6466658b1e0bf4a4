// Documents, byte for byte: each table in tests/data/documents is a message's
// life, its .xml files what must come out under the rulebook that they name.

#include <gtest/gtest.h>

#include <filesystem>

#include "support/messages.h"
#include "support/runtime_control.h"
#include "support/table.h"
#include "transactions/credit_transfer.h"
#include "xml/document_stamp.h"

namespace {

std::string live(const std::string& table, const std::string& rulebook) {
  const runtime_control::fixed_clock clock(2024, 4, 17, 7, 30, 5, "CET-2");
  const runtime_control::fixed_process_id process(123);
  tivex::msgid_counter = 45;
  message_ptr msg;
  for (const row& columns : read_table(table, 3)) {
    const std::string function = columns[0].str();
    const std::string error = columns[2].str();
    if (function == "new") {
      msg = new_message(columns[1].str() == "CT" ? TIVEX_CREDIT_TRANSFER : TIVEX_DIRECT_DEBIT,
                        rulebook);
    } else {
      EXPECT_EQ(call(msg, function, columns[1].c_str()), error.empty() ? 1 : 0) << function;
      EXPECT_TRUE(error.empty() || error_of(msg) == error) << error_of(msg);
    }
  }
  const std::string document = document_of(msg);
  EXPECT_EQ(document_of(msg), document) << "and again";
  return document;
}

}  // namespace

TEST(Documents, AreWrittenByteForByte) {
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(TIVEX_TEST_DATA "/documents")) {
    if (file.path().extension() != ".xml") continue;
    const std::string name = file.path().filename().string();
    SCOPED_TRACE(name);
    const std::size_t dot = name.find('.');
    const std::string rulebook = name.substr(dot + 1, name.size() - dot - 5);
    EXPECT_EQ(live("documents/" + name.substr(0, dot) + ".tsv", rulebook),
              read_data("documents/" + name));
    ++count;
  }
  EXPECT_GE(count, 33);
}

TEST(Documents, NeedARulebook) {
  for (const int type : {TIVEX_CREDIT_TRANSFER, TIVEX_DIRECT_DEBIT}) {
    const message_ptr msg = with_header(new_message(type));
    ASSERT_EQ(add(msg), 1);
    for (const int unknown : {-1, 11}) {
      tivex::rulebook = unknown;
      EXPECT_EQ(document_of(msg), "");
      EXPECT_EQ(error_of(msg), "unknown/unsupported SEPA rulebook selected");
    }
    EXPECT_TRUE(msg->message_id) << "it is drawn before";
  }
}

TEST(Documents, RefuseADateThatNoHostCanSet) {
  const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER);
  ASSERT_EQ(add(msg), 1);
  static_cast<tivex::ct_transaction*>(msg->first)->date.assign("2024-05-010");
  EXPECT_EQ(document_of(msg), "");
  EXPECT_EQ(error_of(msg), "Internal error (pmt not found)");
}
