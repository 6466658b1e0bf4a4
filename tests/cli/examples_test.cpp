// The examples under each rulebook: the documents are well-formed, and their
// counts and sums are those of the CSV text.
#include <gtest/gtest.h>

#include <algorithm>
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

// What the example of a command looks like, and what one of its blocks says.
struct kind {
  std::string command;
  std::string file;
  std::string date;  // of rows without one
  const char* date_element;
  bool sequences;
};
const kind kinds[] = {{transfer, "payroll", "2026-11-27", "ReqdExctnDt", false},
                      {debit, "collections", "2026-12-01", "ReqdColltnDt", true}};

// What orders the blocks: the date and, of direct debits, the sequence type.
std::string block_key(const std::string& date, const std::string& sequence) {
  static const std::vector<std::string> order = {"", "FRST", "RCUR", "OOFF", "FNAL"};
  const auto found = std::find(order.begin(), order.end(), sequence);
  EXPECT_NE(found, order.end()) << sequence;
  return date + std::to_string(found - order.begin());
}

// Columns 4 to 6 of the examples are the amount, the date and, of direct debits,
// the sequence type.
std::map<std::string, totals> totals_of_csv(const std::string& csv, const kind& k) {
  std::istringstream lines(csv);
  std::string line;
  std::getline(lines, line);
  EXPECT_TRUE(line.starts_with("id,name,iban,bic,amount,date,"));
  EXPECT_EQ(line.find(",date,seq,") != std::string::npos, k.sequences);
  std::map<std::string, totals> result;
  while (std::getline(lines, line)) {
    const auto cells = split(line);
    const std::string date = cells.at(5).empty() ? k.date : cells.at(5);
    add(result[block_key(date, k.sequences ? cells.at(6) : "")], {1, cents(cells.at(4))});
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

std::string block_key(const std::string& block, const kind& k) {
  return block_key(elements(block, k.date_element).at(0),
                   k.sequences ? elements(block, "SeqTp").at(0) : "");
}

void expect_agreement(const kind& k, const std::string& rulebook, const std::string& options) {
  const std::string csv = folder + k.file + (rulebook == "DE-3.7" ? ".csv" : "_address_lines.csv");
  const scratch_directory directory;
  const std::string target = directory / "out.xml";
  const program_result result = run(k.command + options + " --rulebook " + rulebook + " " + csv +
                                    " -o " + target + " && xmllint --noout " + target);
  ASSERT_EQ(result.status, 0) << result.errors;

  const std::string xml = read_file(target);
  const auto expected = totals_of_csv(read_file(csv), k);
  const auto blocks = elements(xml, "PmtInf");
  ASSERT_EQ(blocks.size(), expected.size());
  totals all;
  std::size_t number = 0;
  for (const auto& [key, part] : expected) {
    const std::string& block = blocks[number++];
    EXPECT_EQ(block_key(block, k), key);
    EXPECT_TRUE(elements(block, "PmtInfId").at(0).ends_with("-P" + std::to_string(number)));
    EXPECT_EQ(stated(block), part);
    totals found;
    for (const std::string& amount : elements(block, "InstdAmt")) add(found, {1, cents(amount)});
    EXPECT_EQ(found, part);
    add(all, part);
  }
  EXPECT_EQ(stated(xml), all);
  EXPECT_EQ(all.first, 200);
}

class Examples : public testing::TestWithParam<const char*> {};

TEST_P(Examples, DocumentsAgreeWithTheFiles) {
  const std::string rulebook = GetParam();
  for (const kind& k : kinds) expect_agreement(k, rulebook, "");
  const program_result cor1 = run(debit + "--type COR1 --rulebook " + rulebook + " /dev/null");
  const bool allowed = cor1.status == 1;  // so far that the empty file is found
  EXPECT_EQ(allowed, contains("DE-2.7 DE-2.8 DE-2.9 AT-6 NL-6", rulebook)) << cor1.errors;
  if (allowed) expect_agreement(kinds[1], rulebook, "--type COR1");
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
