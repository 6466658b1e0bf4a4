// No released block still holds account data.

#include <gtest/gtest.h>

#include <cstring>

#include "platform/platform.h"
#include "support/messages.h"
#include "support/runtime_control.h"

namespace {

// The middle of a text, and what stands behind the size of a pointer.
class Wiping : public testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(Wiping, OverwritesTextsRecordsAndDocumentsBeforeRelease) {
  const char* const secret = "NO9386011117947";
  const runtime_control::released_text_watch watch(GetParam());
  {
    const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER);
    for (int round = 0; round < 2; ++round) {
      ASSERT_EQ(tivex_setIBAN(msg.get(), secret), 1);
      ASSERT_EQ(tivex_setName(msg.get(), secret), 1);
      ASSERT_EQ(tivex_setMessageId(msg.get(), secret), 1);
    }
    // Escaped, the addresses are longer than the writer expects.
    const std::string wide(70, '&');
    for (int count = 0; count < 20; ++count) {
      pairs list = {{"iban", secret}, {"ref", secret}, {"ref", secret}, {"addrTown", secret}};
      for (const char* const key : {"addrDept", "addrRoom", "addrFloor", "addrStreet"}) {
        list.push_back({key, wide.c_str()});
      }
      ASSERT_EQ(add(msg, list), 1);
    }
    const message_ptr debit = new_message(TIVEX_DIRECT_DEBIT);
    ASSERT_EQ(add(debit, {{"mref", secret}, {"old_iban", secret}}), 1);
    for (const int type : {TIVEX_CREDIT_TRANSFER, TIVEX_DIRECT_DEBIT}) {
      const message_ptr further = new_message(type, "DE-26.11");
      for (const int expected : {1, 0}) {
        ASSERT_EQ(add(further, {{"cref", "RF13NO9386011117947"},
                                {"ultmtDbtr", secret},
                                {"ultmtCdtr", secret},
                                {"instrId", secret},
                                {"addrLine1", secret},
                                {"amount", expected == 1 ? "1" : "0"}}),
                  expected);
      }
    }
    ASSERT_EQ(tivex_init(TIVEX_OPTION_RULEBOOK, "DE-3.7"), 1);
    // A half-built record, an error text in the message, a document that grows
    // through several blocks and one that is given up.
    EXPECT_EQ(add(msg, {{"ref", secret}, {"iban", "NO"}}), 0);
    EXPECT_EQ(tivex_setIBAN(msg.get(), "NO93860111179470"), 0);
    const char* const document = tivex_toXML(msg.get());
    ASSERT_NE(document, nullptr);
    EXPECT_NE(std::string_view(document).find("386011117"), std::string_view::npos);
    for (std::size_t n = 1; n <= 5; ++n) {
      const runtime_control::failing_allocation failing(n, true);
      EXPECT_EQ(tivex_toXML(msg.get()), nullptr) << n;
    }
    tivex::platform::wipe(const_cast<char*>(document), std::strlen(document));
    std::free(const_cast<char*>(document));
  }
  EXPECT_GT(watch.blocks(), 100u);
  EXPECT_EQ(watch.blocks_with_text(), 0u);
}

INSTANTIATE_TEST_SUITE_P(PartsOfATextOf, Wiping, testing::Values("386011117", "1117947"));

TEST(WipingOfMemory, ReachesEveryByteOfABlockAndNoOther) {
  const std::size_t large = std::size_t{4} << 20;
  for (const std::size_t size : {large - 1, large, large + 5, large + 31}) {
    for (const std::size_t place : {1u, 16u, 17u, 31u}) {
      std::string block(size + 64, 'x');
      tivex::platform::wipe(block.data() + place, size);
      EXPECT_EQ(block.find('\0'), place);
      EXPECT_EQ(block.find('x', place), place + size);
      EXPECT_EQ(block.find_last_of('\0'), place + size - 1);
    }
  }
}

// The amount of a record stands in no text.
TEST(WipingOfRecords, OverwritesTheNumbersOfRecords) {
  const double amount = 12345.67;
  const std::string bytes(reinterpret_cast<const char*>(&amount), sizeof amount);
  for (const int type : {TIVEX_CREDIT_TRANSFER, TIVEX_DIRECT_DEBIT}) {
    const runtime_control::released_text_watch watch(bytes);
    {
      const message_ptr msg = new_message(type);
      ASSERT_EQ(add(msg, {{"amount", "12345.67"}}), 1);
      ASSERT_EQ(msg->control_sum, amount);
    }
    EXPECT_GE(watch.blocks(), 2u);
    EXPECT_EQ(watch.blocks_with_text(), 0u) << type;
  }
}
