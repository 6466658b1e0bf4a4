// Faults of a CSV file: each is found on its line, and nothing is written.
#include <gtest/gtest.h>

#include "program.h"

namespace {

using std::string_literals::operator""s;

struct fault_case {
  std::string csv;
  std::string errors;
  std::string rulebook = "DE-3.7";
  std::string command = transfer;
};

void expect_faults(std::initializer_list<fault_case> cases) {
  for (const fault_case& c : cases) {
    const std::string line = c.command + "--rulebook " + c.rulebook + " -";
    const program_result result = run(line, with_ibans(c.csv));
    EXPECT_EQ(result.status, 1) << c.csv;
    EXPECT_EQ(result.output, "") << c.csv;
    EXPECT_EQ(result.errors, c.errors) << c.csv;
  }
}

TEST(Faults, OfTheHeader) {
  expect_faults({
      {"", "-: no header\n"},
      {"\n \n\r\n", "-: no header\n"},
      {"iban,amount\n\n", "-: no transactions\n"},
      {"ibn,amount\n", "-:1: unknown column 'ibn' (did you mean 'iban'?)\n"},
      {"iban,ADRTOWM\n", "-:1: unknown column 'ADRTOWM' (did you mean 'addrTown'?)\n"},
      {"iban\0x\n"s, "-:1: unknown column 'iban\\x00x' (did you mean 'iban'?)\n"},
      {"iban,,\n", "-:1: column without a name\n-:1: column without a name\n"},
      {"iban;amount\n", "-:1: unknown column 'iban;amount' (is another --delimiter needed?)\n"},
      {"\n\niban,amount,IBAN\n", "-:3: column 'IBAN' occurs twice\n"},
      {"iban,\"am\"ount\n@,1\n", "-:1: malformed quoting\n"},
      {"iban,addrTown\n@,\n", "-:1: column 'addrTown' needs rulebook DE-3.7\n", "DE-3.5"},
  });
}

TEST(Faults, OfRowsNameLineAndKey) {
  expect_faults({
      {"iban,amount\n@,1\nDE88370400440532013000,1\n@,-3\n",
       "-:3: iban: Invalid IBAN checksum\n"
       "-:4: amount: Negative or zero amount not allowed\n"},
      {"name,iban,amount,bic\nA,@,1,XX\n", "-:2: bic: Invalid BIC format\n"},
      {"iban,amount,name\n@,1,René\n", "-:2: name: Invalid character '\\xC3' in creditor name\n"},
      {"iban,amount\n,1\n@,\n@,0.001\n",
       "-:2: iban: IBAN missing\n-:3: amount: Amount missing\n-:4: amount: Amount missing\n"},
      {"iban,amount\n@,1\n", "-:2: bic: BIC missing\n", "DE-2.6"},
      {"iban,amount,addrLine2\n@,1,x\n",
       "-:2: addrLine2: selected SEPA rulebook requires structured address data\n"},
      {"iban,amount,ref\n@,1\n@,1,a,b\n",
       "-:2: 2 cells, the header names 3\n-:3: 4 cells, the header names 3\n"},
      {"iban,amount,name\n@,1,M\xFCller\n@,1,a\xC3\n@,1,\xED\xA0\x80\n@,1,\xC0\xBC\n",
       "-:2: name: byte 0xFC is not UTF-8\n-:3: name: byte 0xC3 is not UTF-8\n"
       "-:4: name: byte 0xED is not UTF-8\n-:5: name: byte 0xC0 is not UTF-8\n"},
      {"iban,amount,addrTown\n@\0,1,\n@,1,a\x1B[2J\n@,1,a\xC2\x85\n@,1,\xEF\xBF\xBE\n"s,
       "-:2: iban: control character U+0000\n-:3: addrTown: control character U+001B\n"
       "-:4: addrTown: control character U+0085\n-:5: addrTown: code point U+FFFE or U+FFFF\n"},
      {"iban,amount,id\n@,1,a<b\n@,1,a>b\n@,1,a&b\n",
       "-:2: id: character '<' not allowed\n-:3: id: character '>' not allowed\n"
       "-:4: id: character '&' not allowed\n",
       "AT-6"},
      {"iban,amount,purp\n@,1,<a/>\n@,1,sala\n",
       "-:2: purp: purpose not of four capital letters or digits\n"
       "-:3: purp: purpose not of four capital letters or digits\n",
       "AT-6"},
      {"iban,amount,date\n@,1,<!--abc-->\n@,1,2026-1-011\n",
       "-:2: date: date not of the form yyyy-mm-dd\n"
       "-:3: date: date not of the form yyyy-mm-dd\n",
       "AT-6"},
  });
}

TEST(Faults, OfCollectionsNameLineAndKey) {
  const std::string header = "iban,amount,seq,bic,mref,mdate,addrLine1\n";
  const std::string swiss = "@,1,RCUR,ZKBKCHZZ80A,";
  expect_faults({
      {header + "@,1,LAST,,,,\n@,1,,,,,\n@,,RCUR,,,,\n",
       "-:2: seq: Invalid/unknown sequence type\n-:3: seq: Sequence type missing\n"
       "-:4: amount: Amount missing\n",
       "DE-3.5", debit},
      {header + swiss + ",,x\n" + swiss + ",,\n" + swiss + "M&1,,x\n" + swiss + ",2026-1-011,x\n",
       "-:3: addrLine1: Address required for BICs outside EEA\n"
       "-:4: mref: character '&' not allowed\n-:5: mdate: date not of the form yyyy-mm-dd\n",
       "DE-3.5", debit},
      {header + swiss + ",,\n",
       "-:2: addrTown: Structured address required for BICs outside EEA (at least town and "
       "country)\n",
       "DE-3.7", debit},
      {"iban,amount,seq,smnda,mrf\n", "-:1: unknown column 'mrf' (did you mean 'mref'?)\n",
       "DE-3.7", debit},
      {"iban,amount,seq,smnda\n@,1,RCUR,x\n", "-:2: smnda: Invalid value 'x' for SMNDA flag\n",
       "DE-3.7", debit},
  });
}

std::string refused(std::size_t line) {
  return "-:" + std::to_string(line) + ": iban: Invalid or unknown IBAN country code\n";
}

TEST(Faults, AreOnTheLineWhereTheRowStarts) {
  expect_faults({
      {"\niban,amount\n\nX,1\n\n\nX,1\n", refused(4) + refused(7)},
      {"iban,amount\r\n\r\nX,1\r\nX,1\r\n", refused(3) + refused(4)},
      {"iban,amount,ref\n@,1,\"a\n\nb\"\nX,1,\n@,1,\"a\r\nb\"\r\nX,1,\n",
       "-:2: ref: control character U+000A\n" + refused(5) +
           "-:6: ref: control character U+000D\n" + refused(8)},
      {"iban,amount,ref\n@,1,a\"b\nX,1,\n", "-:2: malformed quoting\n" + refused(3)},
      {"iban,amount,ref\n@,1,\"a\nb\"c,\"d\nX,1,\n", "-:2: malformed quoting\n" + refused(4)},
      {"iban,amount,ref\nX,1,\n@,1,\"a\nX,1,\n",
       refused(2) + "-:3: quoted cell that is not closed\n"},
      {"iban,amount\n@,\"1" + std::string(66000, '\n') + "X,1\n@,\"\"\n",
       "-:2: row longer than 65536 bytes (a quote that is not closed?)\n" + refused(66002) +
           "-:66003: amount: Amount missing\n"},
  });
}

TEST(Faults, BeyondTwentyAreCounted) {
  std::string errors;
  std::string csv = "iban,amount\n";
  for (std::size_t line = 2; line < 22; ++line) {
    csv += "X,1\n";
    errors += refused(line);
  }
  expect_faults({{csv, errors},
                 {csv + "X,1\n@,1\n", errors + "-: 1 more fault\n"},
                 {csv + "1\n\"\"2\nX,1\n", errors + "-: 3 more faults\n"}});
}

TEST(Faults, OfTheFileItself) {
  const scratch_directory directory;
  const std::string missing = directory / "none.csv";
  EXPECT_EQ(run(transfer + missing).errors, missing + ": No such file or directory\n");
  const program_result folder = run(transfer + directory / "");
  EXPECT_EQ(folder.errors, directory / "" + ": Is a directory\n");
  EXPECT_EQ(folder.status, 1);
}

}  // namespace
