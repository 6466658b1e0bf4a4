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
  return file + (rulebook == "DE-3.7" ? ".csv" : "_address_lines.csv");
}

void expect_agreement(const std::string& command, const std::string& file,
                      const std::string& rulebook, const std::string& usual_date) {
  const std::string csv = csv_for(rulebook, file);
  const program_result result = run(command + " --rulebook " + rulebook + " $examples/" + csv +
                                    " -o x.xml && xmllint --noout x.xml && cat x.xml");
  EXPECT_EQ(result.status, 0) << result.errors;
  const std::string values =
      values_of_csv(read_file(TIVEX_SOURCE_DIR "/examples/" + csv), usual_date);
  EXPECT_EQ(values_of_document(result.output), values) << command;
  EXPECT_TRUE(values.starts_with("200\n"));
}

// The schemas by which a document is judged, the German subsets for German banks.
constexpr const char* validate = R"sh(
    version=$(sed -n 's/.*:xsd:\(pain[0-9.]*\)".*/\1/p' x.xml)
    case $version in
      pain.001.001.09 | pain.008.001.08) subset=_GBIC_4 ;;
      pain.001.001.03 | pain.008.001.02) subset=_GBIC ;;
      *) subset= ;;
    esac
    files=
    [ -n "$subset" ] && files=$TIVEX_SCHEMAS/iso/$version.xsd
    [ $german = 0 ] || files="$files $TIVEX_SCHEMAS/dk/$version$subset.xsd"
    for file in $files; do
      xmllint --noout --schema $file x.xml 2>&1 || exit
    done)sh";

void expect_validity(const std::string& command, const std::string& file,
                     const std::string& rulebook) {
  const bool german = rulebook.starts_with("DE");
  const std::string csv = csv_for(rulebook, file);
  const program_result result = run(command + " --rulebook " + rulebook + " $examples/" + csv +
                                    " -o x.xml && german=" + (german ? "1" : "0") + validate);
  EXPECT_EQ(result.status, 0) << result.output << result.errors;
  const std::string validates = "x.xml validates\n";
  EXPECT_EQ(result.output, rulebook.starts_with("DE-3") ? validates + validates : validates);
}

class Examples : public testing::TestWithParam<const char*> {};

TEST_P(Examples, DocumentsAgreeWithTheFiles) {
  expect_agreement("transfer", "payroll", GetParam(), "2026-11-27");
  expect_agreement("debit", "collections", GetParam(), "2026-12-01");
  // That the other rulebooks refuse COR1 is among the cases of usage.
  if (contains("DE-2.7 DE-2.8 DE-2.9 AT-6 NL-6", GetParam()))
    expect_agreement("debit --type COR1", "collections", GetParam(), "2026-12-01");
}

TEST_P(Examples, DocumentsMeetTheirSchemas) {
  if (std::getenv("TIVEX_SCHEMAS") == nullptr) GTEST_SKIP() << "TIVEX_SCHEMAS names no folder";
  expect_validity("transfer", "payroll", GetParam());
  expect_validity("debit", "collections", GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rulebooks, Examples,
                         testing::Values("DE-2.6", "DE-2.7", "DE-2.8", "DE-2.9", "DE-3.0", "DE-3.1",
                                         "DE-3.5", "DE-3.7", "AT-6", "NL-6"));

}  // namespace
