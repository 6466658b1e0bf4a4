// What several threads may do at once; run under the thread sanitizer.

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <thread>

#include "support/messages.h"

#if defined(__SANITIZE_THREAD__)
// The C library's own lock around the time zone is not seen by the sanitizer.
extern "C" const char* __tsan_default_suppressions() { return "race:tzset_internal\n"; }
#endif

namespace {

template <class work>
void run_together(std::size_t count, const work& each) {
  std::vector<std::thread> threads;
  for (std::size_t index = 0; index < count; ++index) threads.emplace_back(each, index);
  for (std::thread& thread : threads) thread.join();
}

}  // namespace

TEST(Threads, MayValidateWhileOthersCleanUp) {
  run_together(4, [](std::size_t) {
    for (int repeat = 0; repeat < 50; ++repeat) {
      EXPECT_EQ(tivex_iban_check("GB29NWBK60161331926819"), 1);
      tivex_cleanup();
      EXPECT_EQ(tivex_iban_check("GB29NWBK60161331926818"), -1);
    }
  });
}

TEST(Threads, WriteMessagesOfTheirOwnWithIdentifiersOfTheirOwn) {
  ASSERT_EQ(tivex_init(3, "DE-3.7"), 1);
  std::vector<std::vector<std::string>> identifiers(4);
  run_together(identifiers.size(), [&identifiers](std::size_t index) {
    for (int repeat = 0; repeat < 50; ++repeat) {
      const message_ptr msg(tivex_new(TIVEX_CREDIT_TRANSFER));
      EXPECT_TRUE(add(msg) == 1 && !document_of(msg).empty());
      identifiers[index].emplace_back(msg->message_id.c_str());
    }
  });
  std::set<std::string> different;
  for (const auto& of_thread : identifiers) different.insert(of_thread.begin(), of_thread.end());
  EXPECT_EQ(different.size(), 200u);
}

TEST(Threads, MayLookUpCheckAndConvertTogether) {
  run_together(4, [](std::size_t index) {
    for (int repeat = 0; repeat < 50; ++repeat) {
      char iban[35];
      unsigned char status = 0;
      EXPECT_EQ(tivex_iban_convert("DE", "532013000", "37040044", iban, &status), 1);
      EXPECT_EQ(tivex_iban_check(iban), 1);
      EXPECT_EQ(tivex_bic_getBank(index % 2 == 0 ? "MARKDEFF" : "COBADEFF", nullptr), 1);
      tivex_bank_info_t* bank = nullptr;
      ASSERT_EQ(tivex_bankid_check("DE", "30040098", &bank), 1);
      EXPECT_STREQ(bank->country, "DE");
      std::free(bank);
    }
  });
}

TEST(Threads, MayReadStatementsWithParsersOfTheirOwn) {
  run_together(4, [](std::size_t) {
    for (int repeat = 0; repeat < 5; ++repeat) {
      tivex_stmt_parser_t* const parser = tivex_stmt_parser_new();
      EXPECT_EQ(tivex_stmt_parser_load(parser, 1, TIVEX_SOURCE "/../examples/statement.sta"), 1);
      EXPECT_NE(tivex_stmt_parser_getStatement(parser), nullptr);
      tivex_stmt_parser_free(parser);
    }
  });
}
