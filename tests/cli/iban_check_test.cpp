#include <gtest/gtest.h>

#include "program.h"

namespace {

using std::string_literals::operator""s;

TEST(IbanCheck, TellsEachReason) {
  const struct {
    std::string ibans;
    std::string input;
    int status;
    std::string output;
  } cases[] = {
      {"@", "", 0, "@: valid\n"},
      {"AT601904300234573201 @ DE8937040044053201300", "", 1,
       "AT601904300234573201: Invalid IBAN checksum\n@: valid\n"
       "DE8937040044053201300: Wrong IBAN length\n"},
      {"'XX (1)' ''", "", 1,
       "XX (1): Invalid or unknown IBAN country code\n"
       ": Invalid or unknown IBAN country code\n"},
      {"-", "@\r\n\n\r\n@", 0, "@: valid\n@: valid\n"},
      {"-", "@\0\n"s, 1, "@\\x00: control character U+0000\n"},
      {std::string(300, 'A'), "", 1,
       std::string(300, 'A') + ": Invalid or unknown IBAN country code\n"},
  };
  for (const auto& c : cases) {
    const program_result result =
        run("tivex iban check " + with_ibans(c.ibans), with_ibans(c.input));
    EXPECT_EQ(result.status, c.status) << c.ibans;
    EXPECT_EQ(result.output, with_ibans(c.output));
    EXPECT_EQ(result.errors, "");
  }
}

TEST(IbanCheck, FailedOutputIsAnError) {
  const program_result result = run("tivex iban check " + with_ibans("@") + " >/dev/full");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "standard output: No space left on device\n");
}

}  // namespace
