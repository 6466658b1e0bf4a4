// Exit status and messages of arguments.
#include <gtest/gtest.h>
#include <tivex.h>

#include "program.h"

namespace {

const std::string csv = with_ibans("iban,amount\n@,1\n");

TEST(Usage, WrongArgumentsEndWithStatus2) {
  const struct {
    std::string line;
    const char* says;
  } cases[] = {
      {"tivex", "subcommand is required"},
      {"tivex transfer", "unknown command or option 'transfer'\n"},
      {"tivex iban chek", "unknown command or option 'chek'\n"},
      {"tivex iban check", "IBAN"},
      {"tivex credit-transfer --name A -", "--iban"},
      {transfer, "FILE"},
      {transfer + "--frobnicate -", "--frobnicate"},
      {transfer + "--delimiter x -", "--delimiter: "},
      {transfer + "--rulebook de-3.7 -",
       "--rulebook: unknown rulebook 'de-3.7' (known: DE-2.6, DE-2.7, DE-2.8, DE-2.9, DE-3.0, "
       "DE-3.1, DE-3.5, DE-3.7, AT-6, NL-6)\n"},
      {transfer + "--bic '' -", "--bic: tivex_setBIC: invalid BIC format\n"},
      {transfer + "--message-id 'a<b' -", "--message-id: Invalid message id\n"},
      {"tivex credit-transfer --name A --iban DE88370400440532013000 -",
       "--iban: Invalid IBAN checksum (DE88370400440532013000)\n"},
      {"tivex credit-transfer --name A --iban DE89370400440532013000 --date '2026-11-<b' -",
       "--date: date not of the form yyyy-mm-dd\n"},
      {"tivex direct-debit --name A --iban DE89370400440532013000 --bic COBADEFFXXX -",
       "--creditor-id"},
      {debit + "--creditor-id DE99ZZZ09999999999 -", "--creditor-id"},
      {debit + "--type CORE1 -", "--type: unknown type 'CORE1' (known: CORE, COR1, B2B)\n"},
      {debit + "--type COR1 -", "--type: COR1 is not allowed with selected SEPA rulebook\n"},
      {"tivex credit-transfer --name M\xFCller --iban DE89370400440532013000 -",
       "--name: byte 0xFC is not UTF-8\n"},
  };
  for (const auto& c : cases) {
    const program_result result = run(c.line, csv);
    EXPECT_EQ(result.status, 2) << c.line;
    EXPECT_EQ(result.output, "") << c.line;
    EXPECT_TRUE(contains(result.errors, c.says)) << c.line << '\n' << result.errors;
  }
}

TEST(Usage, VersionAndHelpSucceed) {
  const program_result version = run("tivex --version");
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.output, "tivex " TIVEX_VERSION_STR "\n");
  for (const std::string command : {"credit-transfer", "direct-debit", "iban", "iban check"}) {
    const program_result help = run("tivex " + command + " --help");
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(contains(help.output, "Example:\n  tivex " + command)) << help.output;
  }
}

TEST(Usage, OptionsReachTheDocument) {
  const auto written = run(transfer + "--bic cobadeffxxx --message-id N1 --single-booking -", csv);
  for (const char* part : {"<Nm>Beispiel GmbH<", "<IBAN>DE89370400440532013000<", ">COBADEFFXXX<",
                           "2026-11-27<", "<MsgId>N1<", "<BtchBookg>false<"}) {
    EXPECT_TRUE(contains(written.output, part)) << part;
  }
  EXPECT_TRUE(contains(run(transfer + "-", csv).output, "<BtchBookg>true<"));
  const std::string collection = with_ibans("iban,amount,seq,mref\n@,1,rcur,M 1\n");
  const auto collected = run(debit + "--type B2B -", collection);
  for (const char* part : {"<Cd>B2B<", "<Id>DE98ZZZ09999999999<", "<BICFI>COBADEFFXXX<",
                           "<ReqdColltnDt>2026-12-01<", "<SeqTp>RCUR<", "<MndtId>M 1<"}) {
    EXPECT_TRUE(contains(collected.output, part)) << part;
  }
}

}  // namespace
