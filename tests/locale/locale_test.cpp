// The tests of the library once more, in a locale that the host has set: before the
// library's first use, or after it. What they expect stays the same.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string_view>

#include "statements/statement_dump.h"
#include "support/messages.h"

namespace {

class host_locale : public testing::Environment {
  void SetUp() override {
    const char* const name = std::getenv("TIVEX_TEST_LOCALE");
    const char* const moment = std::getenv("TIVEX_TEST_MOMENT");
    ASSERT_TRUE(name != nullptr && moment != nullptr);
    if (std::string_view(moment) == "later") use_once();
    ASSERT_NE(std::setlocale(LC_ALL, name), nullptr) << name << " is missing";
  }

  static void use_once() {
    const message_ptr msg = with_header(new_message(TIVEX_CREDIT_TRANSFER));
    ASSERT_EQ(add(msg, {{"name", "Eva"}, {"addrTown", "Wien"}}), 1);
    ASSERT_NE(document_of(msg), "");
    ASSERT_EQ(tivex_iban_check("IS140159260076545510730339"), 1);
  }
};

const testing::Environment* const registered = testing::AddGlobalTestEnvironment(new host_locale);

}  // namespace

TEST(Locale, MakesNoLetterOfAByteAndHasNoCaseOfItsOwn) {
  const message_ptr msg = new_message(TIVEX_DIRECT_DEBIT);
  for (const char* const bic : {"\304EUTDEFF", "\344eutdeff", "DEUTDEF\304", "DEUT\304\260TFF",
                                "D\303\204UTDEF", "deut\304\261tff", "DEUTDEFF\375XX"}) {
    EXPECT_EQ(tivex_setBIC(msg.get(), bic), 0);
    EXPECT_EQ(error_of(msg), "tivex_setBIC: invalid BIC format");
    EXPECT_EQ(add(msg, {{"bic", bic}}), 0);
    EXPECT_EQ(error_of(msg), "Invalid BIC format");
    EXPECT_EQ(tivex_bic_getBank(bic, nullptr), -2);
  }
  EXPECT_EQ(tivex_setBIC(msg.get(), "iiiyitiyiyi"), 1);
  EXPECT_STREQ(msg->bic.c_str(), "IIIYITIYIYI");
  EXPECT_EQ(add(msg, {{"BIC", "yyiiitii"}, {"OLD_IBAN", "IT60X0542811101000000123456"}}), 1);
  EXPECT_EQ(add(msg, {{"\304\260ban", "IT60X0542811101000000123456"}}), 0);
  for (const char* const bic : {"ingddeff", "iNgDdEfFxXx", "ingdDEff"}) {
    EXPECT_EQ(tivex_bic_getBank(bic, nullptr), 1) << bic;
  }
}

TEST(Locale, ChangesNothingInAStatement) {
  const auto dump_loaded_in = [](const char* locale) {
    EXPECT_NE(std::setlocale(LC_ALL, locale), nullptr);
    tivex_stmt_parser_t* const parser = tivex_stmt_parser_new();
    EXPECT_EQ(tivex_stmt_parser_load(parser, TIVEX_FORMAT_MT940,
                                     TIVEX_SOURCE "/../examples/statement.sta"),
              1);
    std::setlocale(LC_NUMERIC, "C");  // the dump itself prints as the locale says
    const std::string dump = dump_of(tivex_stmt_parser_getStatement(parser));
    tivex_stmt_parser_free(parser);
    return dump;
  };
  const std::string plain = dump_loaded_in("C");
  EXPECT_NE(plain.find("closing_balance=7745.51"), plain.npos);
  EXPECT_EQ(dump_loaded_in(std::getenv("TIVEX_TEST_LOCALE")), plain);
  std::setlocale(LC_ALL, std::getenv("TIVEX_TEST_LOCALE"));
}
