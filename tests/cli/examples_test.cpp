// The examples under each rulebook: the documents are well-formed, and what they
// state and hold is what the CSV text adds up to.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <map>
#include <numeric>
#include <regex>
#include <sstream>
#include <vector>

#include "program.h"

namespace {

using amounts = std::vector<double>;

void state(std::ostream& text, const amounts& all) {
  text << all.size() << '\n' << std::accumulate(all.begin(), all.end(), 0.0) << '\n';
}

// What a document is to say of rows: number and sum of all transactions; of each
// block its own number, these two, the sequence type of direct debits, the date,
// and the amounts. The blocks are ordered by date, then by sequence type.
std::string values_of_csv(const std::string& csv, const std::string& usual_date) {
  static const std::regex row(
      R"((?:("[^"]*"|[^",]*),){4}([0-9.]+),([^,]*),(FRST|RCUR|OOFF|FNAL)?.*)");
  static const std::vector<std::string> types = {"", "FRST", "RCUR", "OOFF", "FNAL"};
  std::istringstream lines(csv);
  std::string line;
  std::getline(lines, line);
  EXPECT_TRUE(line.starts_with("id,name,iban,bic,amount,date,"));
  std::map<std::pair<std::string, std::ptrdiff_t>, amounts> blocks;
  amounts all;
  for (std::smatch cells; std::getline(lines, line);) {
    EXPECT_TRUE(std::regex_match(line, cells, row)) << line;
    all.push_back(std::stod(cells[2]));
    const auto type = std::find(types.begin(), types.end(), cells[4].str()) - types.begin();
    blocks[{cells[3].length() == 0 ? usual_date : cells[3].str(), type}].push_back(all.back());
  }
  std::ostringstream text;
  text << std::fixed << std::setprecision(2);
  state(text, all);
  int number = 0;
  for (const auto& [key, part] : blocks) {
    text << ++number << '\n';
    state(text, part);
    if (key.second > 0) text << types.at(static_cast<std::size_t>(key.second)) << '\n';
    text << key.first << '\n';
    for (const double amount : part) text << amount << '\n';
  }
  return text.str();
}

std::string values_of_document(const std::string& xml) {
  static const std::regex value(
      "<(?:PmtInfId>[^<]*-P|NbOfTxs>|CtrlSum>|SeqTp>|Reqd(?:Exctn|Colltn)Dt>(?:\\s*<Dt>)?|InstdAmt "
      "[^>]*>)"
      "([^<]*)<");
  std::string text;
  for (std::sregex_iterator at(xml.begin(), xml.end(), value), end; at != end; ++at)
    text += at->str(1) + "\n";
  return text;
}

// Under the other rulebooks addresses are lines.
std::string csv_for(const std::string& rulebook, const std::string& file) {
  return file + (contains("DE-3.7 DE-26.11", rulebook) ? ".csv" : "_address_lines.csv");
}

void expect_agreement(const std::string& command, const std::string& csv,
                      const std::string& usual_date) {
  const program_result result =
      run(command + " $examples/" + csv + " -o x.xml && xmllint --noout x.xml && cat x.xml");
  EXPECT_EQ(result.status, 0) << result.errors;
  const std::string values =
      values_of_csv(read_file(TIVEX_SOURCE_DIR "/examples/" + csv), usual_date);
  EXPECT_EQ(values_of_document(result.output), values) << command;
  EXPECT_NE(values.find('.'), values.npos);
}

// The schemas by which banks judge the documents of each rulebook, VERSION for the
// document's.
const std::map<std::string, std::string> schemas_of_rulebooks = {
    {"DE-2.6", "dk/VERSION"},
    {"DE-2.7", "dk/VERSION"},
    {"DE-2.8", "dk/VERSION"},
    {"DE-2.9", "dk/VERSION"},
    {"DE-3.0", "iso/VERSION dk/VERSION_GBIC"},
    {"DE-3.1", "iso/VERSION dk/VERSION_GBIC"},
    {"DE-3.5", "iso/VERSION dk/VERSION_GBIC"},
    {"DE-3.7", "iso/VERSION dk/VERSION_GBIC_4 dk-26.11/VERSION_GBIC_5"},
    {"DE-26.11", "iso/VERSION dk-26.11/VERSION_GBIC_5"},
    {"AT-6", "iso/VERSION at/VERSION.at.004"},
    {"NL-6", "iso/VERSION"}};

void expect_validity(const std::string& command, const std::string& csv,
                     const std::string& rulebook) {
  const std::string& schemas = schemas_of_rulebooks.at(rulebook);
  const program_result result =
      run(command + " $examples/" + csv +
          " -o x.xml && version=$(sed -n 's/.*:xsd:\\(pain[0-9.]*\\)\".*/\\1/p' x.xml) && for file "
          "in " +
          replaced(schemas, "VERSION", "${version}") +
          "; do xmllint --noout --schema $TIVEX_SCHEMAS/$file.xsd x.xml 2>&1 || exit; done");
  EXPECT_EQ(result.status, 0) << result.output << result.errors;
  std::string validates;
  for (const char c : " " + schemas) validates += c == ' ' ? "x.xml validates\n" : "";
  EXPECT_EQ(result.output, validates);
}

const std::string instant =
    "with_account credit-transfer --instant --category-purpose SALA --date 2026-12-23";

class Examples : public testing::TestWithParam<const char*> {};

TEST_P(Examples, DocumentsAgreeWithTheFiles) {
  const std::string rulebook = std::string(" --rulebook ") + GetParam();
  const std::string collections = csv_for(GetParam(), "collections");
  expect_agreement("transfer" + rulebook, csv_for(GetParam(), "payroll"), "2026-11-27");
  expect_agreement("debit" + rulebook, collections, "2026-12-01");
  // That the other rulebooks refuse COR1 is among the cases of usage.
  if (contains("DE-2.7 DE-2.8 DE-2.9 AT-6 NL-6", GetParam()))
    expect_agreement("debit --type COR1" + rulebook, collections, "2026-12-01");
}

TEST_P(Examples, DocumentsMeetTheirSchemas) {
  if (std::getenv("TIVEX_SCHEMAS") == nullptr) GTEST_SKIP() << "TIVEX_SCHEMAS names no folder";
  const std::string rulebook = std::string(" --rulebook ") + GetParam();
  expect_validity("transfer" + rulebook, csv_for(GetParam(), "payroll"), GetParam());
  expect_validity("debit" + rulebook, csv_for(GetParam(), "collections"), GetParam());
}

TEST(InstantSalaries, AgreeWithTheFileAndMeetTheirSchemas) {
  expect_agreement(instant, "salaries_instant.csv", "2026-12-23");
  if (std::getenv("TIVEX_SCHEMAS") == nullptr) GTEST_SKIP() << "TIVEX_SCHEMAS names no folder";
  expect_validity(instant, "salaries_instant.csv", "DE-26.11");
}

INSTANTIATE_TEST_SUITE_P(Rulebooks, Examples,
                         testing::Values("DE-2.6", "DE-2.7", "DE-2.8", "DE-2.9", "DE-3.0", "DE-3.1",
                                         "DE-3.5", "DE-3.7", "DE-26.11", "AT-6", "NL-6"));

}  // namespace
