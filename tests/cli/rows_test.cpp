// What is read as which cell.
#include <gtest/gtest.h>

#include "program.h"

namespace {

TEST(Rows, OfAllFormsAreReadAlike) {
  const struct {
    const char* form;
    std::string csv;
    const char* options = "";
  } cases[] = {
      {"plain", "iban,name,amount,ref\n@,Jörg,12.5,\"a, b\"\n"},
      {"byte order mark", "\xEF\xBB\xBFiban,name,amount,ref\n@,Jörg,12.5,\"a, b\"\n"},
      {"mark and quotes", "\xEF\xBB\xBF\"iban\",name,amount,ref\n@,\"Jörg\",12.5,\"a, b\""},
      {"CRLF", "iban,name,amount,ref\r\n@,Jörg,12.5,\"a, b\"\r\n"},
      {"blank lines", "\n\niban,name,amount,ref\n \n\r\n@,Jörg,12.5,\"a, b\"\n\n"},
      {"case of keys", "IBAN,Name,AMOUNT,rEF\n@,Jörg,12.5,\"a, b\"\n"},
      {"empty cells", "bic,iban,name,purp,amount,ref,date,id\n,@,Jörg,,12.5,\"a, b\",\"\",\n"},
      {"semicolon", "iban;name;amount;ref\n@;Jörg;12.5;a, b\n", "--delimiter ';'"},
      {"tab", "bic\tiban\tname\tamount\tref\n\t@\tJörg\t12.5\ta, b\n", "--delimiter tab"},
  };
  for (const auto& c : cases) {
    const program_result result = run(transfer + c.options + " -", with_ibans(c.csv));
    EXPECT_EQ(result.status, 0) << c.form << result.errors;
    for (const char* part : {"<NbOfTxs>1<", "<CtrlSum>12.50<", "<IBAN>AT611904300234573201<",
                             "<Nm>Jörg<", "<Ustrd>a, b<"}) {
      EXPECT_TRUE(contains(result.output, part)) << c.form << part;
    }
    EXPECT_FALSE(contains(result.output, "<Purp>")) << c.form;
  }
}

TEST(Rows, AreWholeWhereBuffersEnd) {
  std::string csv = "iban,amount,name\r\n";
  for (int i = 0; i < 9000; ++i) {
    csv += "@,1.01,\"" + std::string(static_cast<std::size_t>(1 + i % 67), 'n') + "\"\r\n";
  }
  const program_result good = run(transfer + "-", with_ibans(csv));
  EXPECT_TRUE(contains(good.errors, "transactions    9000\nsum             9090.00 EUR\n"));
  const program_result bad = run(transfer + "-", with_ibans(csv + "x"));
  EXPECT_EQ(bad.errors, "-:9002: 1 cells, the header names 3\n");
}

}  // namespace
