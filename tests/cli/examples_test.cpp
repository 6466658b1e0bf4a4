// The examples under each rulebook: the documents are well-formed, and their
// counts and sums are those of the CSV text.
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <vector>

#include "program.h"

namespace {

const std::string folder = TIVEX_SOURCE_DIR "/examples/";

// Number of transactions and sum in cents.
using totals = std::pair<long, long>;

void add(totals& sum, const totals& part) {
  sum.first += part.first;
  sum.second += part.second;
}

long cents(const std::string& amount) {
  const std::size_t point = amount.find('.');
  std::string fraction = point == std::string::npos ? "" : amount.substr(point + 1);
  fraction.resize(2, '0');
  return std::stol(amount.substr(0, point) + fraction);
}

std::vector<std::string> split(const std::string& line) {
  std::vector<std::string> cells(1);
  bool quoted = false;
  for (const char c : line) {
    if (c == '"') quoted = !quoted;
    if (c == ',' && !quoted)
      cells.emplace_back();
    else if (c != '"')
      cells.back() += c;
  }
  return cells;
}

// Columns 4 and 5 of both examples are the amount and the date.
std::map<std::string, totals> totals_of_csv(const std::string& csv) {
  std::istringstream lines(csv);
  std::string line;
  std::getline(lines, line);
  EXPECT_TRUE(line.starts_with("id,name,iban,bic,amount,date,"));
  std::map<std::string, totals> result;
  while (std::getline(lines, line)) {
    const auto cells = split(line);
    add(result[cells.at(5).empty() ? "2026-11-27" : cells.at(5)], {1, cents(cells.at(4))});
  }
  return result;
}

// The contents of each element of the name, in order.
std::vector<std::string> elements(const std::string& xml, const std::string& name) {
  std::vector<std::string> contents;
  for (std::size_t at = 0; (at = xml.find("<" + name, at)) != std::string::npos;) {
    const char next = xml.at(at + 1 + name.size());
    at = xml.find('>', at) + 1;
    if (next == '>' || next == ' ')
      contents.push_back(xml.substr(at, xml.find("</" + name + ">", at) - at));
  }
  return contents;
}

totals stated(const std::string& xml) {
  return {std::stol(elements(xml, "NbOfTxs").at(0)), cents(elements(xml, "CtrlSum").at(0))};
}

class Examples : public testing::TestWithParam<const char*> {};

TEST_P(Examples, DocumentAgreesWithTheFile) {
  const std::string rulebook = GetParam();
  const std::string csv =
      folder + (rulebook == "DE-3.7" ? "payroll.csv" : "payroll_address_lines.csv");
  const scratch_directory directory;
  const std::string target = directory / "out.xml";
  const program_result result = run(transfer + "--rulebook " + rulebook + " " + csv + " -o " +
                                    target + " && xmllint --noout " + target);
  ASSERT_EQ(result.status, 0) << result.errors;

  const std::string xml = read_file(target);
  const auto expected = totals_of_csv(read_file(csv));
  const auto blocks = elements(xml, "PmtInf");
  ASSERT_EQ(blocks.size(), expected.size());
  totals all;
  auto block = blocks.begin();
  for (const auto& [date, part] : expected) {
    add(all, part);
    EXPECT_TRUE(contains(elements(*block, "ReqdExctnDt").at(0), date));
    EXPECT_EQ(stated(*block), part);
    totals found;
    for (const std::string& amount : elements(*block++, "InstdAmt")) add(found, {1, cents(amount)});
    EXPECT_EQ(found, part);
  }
  EXPECT_EQ(stated(xml), all);
  EXPECT_EQ(all.first, 200);
}

INSTANTIATE_TEST_SUITE_P(Rulebooks, Examples,
                         testing::Values("DE-2.6", "DE-2.7", "DE-2.8", "DE-2.9", "DE-3.0", "DE-3.1",
                                         "DE-3.5", "DE-3.7", "AT-6", "NL-6"));

TEST(Addresses, AreRefusedWhereTheyDoNotApply) {
  const program_result lines = run(transfer + folder + "payroll_address_lines.csv");
  EXPECT_EQ(lines.status, 1);
  EXPECT_TRUE(contains(lines.errors, ": addrLine1: selected SEPA rulebook requires structured"));
  const program_result parts = run(transfer + "--rulebook DE-3.5 " + folder + "payroll.csv");
  EXPECT_EQ(parts.status, 1);
  EXPECT_TRUE(contains(parts.errors, "payroll.csv:1: column 'addrStreet' needs rulebook DE-3.7\n"));
}

}  // namespace
