// Runs the cases of the files in tests/data/cli; faults.cases tells their form.
#include <gtest/gtest.h>
#include <tivex.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <regex>
#include <vector>

#include "program.h"

namespace {

using texts = std::vector<std::string>;

// The texts of a case by their marks; under "" where it stands.
using marked_texts = std::map<std::string, texts>;

std::string joined(const texts& parts, const char* end) {
  std::string all;
  for (const std::string& part : parts) all += part + end;
  return all;
}

// Returns the text with each \xHH and {12*TEXT} replaced by what it stands for.
std::string expanded(std::string text) {
  static const std::regex form(R"(\\x(..)|\{(\d+)\*([^}]*)\})");
  std::string plain;
  for (std::smatch match; std::regex_search(text, match, form); text = match.suffix()) {
    plain += match.prefix();
    plain += match[1].matched ? std::string(1, static_cast<char>(std::stoi(match[1], nullptr, 16)))
                              : joined(texts(std::stoul(match[2]), match[3]), "");
  }
  return plain + text;
}

std::vector<marked_texts> read_cases(const std::string& name) {
  static const std::regex form(
      R"((% \{\w+\}|\$|\?|<|=|[!>][~^]?) ((?:[^\\\r]|\\[nrt]|\\x[0-9A-F]{2})+))");
  std::map<std::string, std::string> names = {{"{version}", TIVEX_VERSION_STR},
                                              {"{edition}", tivex_edition_str},
                                              {"\\n", "\n"},
                                              {"\\r", "\r"},
                                              {"\\t", "\t"}};
  std::vector<marked_texts> cases;
  std::ifstream file(TIVEX_SOURCE_DIR "/tests/data/cli/" + name);
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.empty() || line.starts_with('#')) continue;
    const std::string where = name + ":" + std::to_string(number);
    std::smatch match;
    const bool known = std::regex_match(line, match, form);
    const std::string mark = match[1];
    std::string text = with_ibans(match[2]);
    for (const auto& [part, by] : names) text = replaced(text, part, by);
    if (mark == "$") cases.push_back({{"", {where}}});
    if (mark.starts_with('%'))
      names[mark.substr(2)] += text;
    else if (known && !cases.empty())
      cases.back()[mark].push_back(expanded(text));
    else
      ADD_FAILURE() << where << ": not a line of a case: " << line;
  }
  return cases;
}

void expect_stream(marked_texts& c, const std::string& mark, const std::string& seen) {
  const texts &parts = c[mark + "~"], &absent = c[mark + "^"];
  const bool whole = parts.empty() && absent.empty();
  EXPECT_EQ(whole ? seen : "", joined(c[mark], "\n")) << mark << " excludes " << mark << "~";
  for (const std::string& part : parts) EXPECT_PRED_FORMAT2(testing::IsSubstring, part, seen);
  for (const std::string& part : absent) EXPECT_PRED_FORMAT2(testing::IsNotSubstring, part, seen);
}

class Cases : public testing::TestWithParam<std::string> {};

TEST_P(Cases, EndAsTheirFileSays) {
  std::vector<marked_texts> cases = read_cases(GetParam() + ".cases");
  EXPECT_FALSE(cases.empty());
  for (marked_texts& c : cases) {
    SCOPED_TRACE(c[""][0]);
    if (!c["?"].empty() && std::getenv("TIVEX_PROGRAM") != nullptr) continue;
    ASSERT_FALSE(contains(c["$"][0], "-o /dev/")) << "a failing program may replace the device";
    const program_result result = run(c["$"][0], joined(c["<"], ""));
    EXPECT_EQ(texts{std::to_string(result.status)}, c["="]);
    expect_stream(c, "!", result.errors);
    expect_stream(c, ">", result.output);
  }
}

INSTANTIATE_TEST_SUITE_P(Program, Cases,
                         testing::Values("account_check", "bank", "faults", "iban_check",
                                         "iban_convert", "output", "rows", "schema", "statement",
                                         "tables", "telling", "usage"),
                         [](const auto& file) { return file.param; });

TEST(Rows, AreWholeWhereBuffersEnd) {
  std::string csv = "iban,amount,name\r\n";
  for (std::size_t i = 0; i < 9000; ++i)
    csv += "@,1.01,\"" + std::string(1 + i % 67, 'n') + "\"\r\n";
  const program_result good = run("transfer -", with_ibans(csv));
  EXPECT_TRUE(contains(good.errors, "transactions    9000\nsum             9090.00 EUR\n"));
  const program_result bad = run("transfer -", with_ibans(csv + "x"));
  EXPECT_TRUE(bad.errors.starts_with("-:9002: 1 cells, the header names 3; ")) << bad.errors;
}

}  // namespace
