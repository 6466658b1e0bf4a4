// CAMT documents: what their elements become, and what is refused.

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <random>
#include <set>

#include "statements/camt/camt.h"
#include "statements/statement_dump.h"
#include "statements/statement_files.h"
#include "support/runtime_control.h"
#include "support/table.h"

namespace {

namespace fs = std::filesystem;

// Documents of every kind, each written in another way.
std::vector<std::string> samples() {
  std::vector<std::string> texts;
  for (const char* const name : {"camt_052.xml", "camt_053.xml", "camt_054.xml"}) {
    texts.push_back(read_data(std::string("statements/") + name));
  }
  return texts;
}

// The lines of what was read, of which each tells its record as the tables do.
std::string outcome_of_text(const std::string& text) {
  tivex::text_block block(text.size() + 1);
  std::memcpy(block.text, text.c_str(), block.size);
  block.length = text.size();
  const parser_ptr parser = new_parser();
  const int result = tivex::camt_parse(*parser, block);
  const std::string error = tivex_stmt_parser_getError(parser.get());
  EXPECT_EQ(result, error.empty() ? 1 : 0) << text;
  const auto* const first = tivex_stmt_parser_getStatement(parser.get());
  if (!error.empty()) {
    EXPECT_EQ(first, nullptr) << text;
    return "error=" + error;
  }
  std::string lines;
  for (std::string line : split(dump_of(first), "\n")) {
    if (line.empty()) continue;
    line.erase(0, 5);
    if (line.starts_with("0 tx 0 ")) {
      line.erase(0, 7);
    } else if (line.starts_with("0 tx ")) {
      line.erase(0, 5);
    } else {
      line = line.starts_with("0 ") ? "S" + line.substr(1) : "S" + line;
    }
    lines += (lines.empty() ? "" : " // ") + line;
  }
  const unsigned pending = tivex_stmt_parser_getPending(parser.get());
  if (pending != 0) lines += " // pending=" + std::to_string(pending);
  return lines;
}

std::string in(const std::string& name, const std::string& content) {
  return "<" + name + ">" + content + "</" + name + ">";
}

// A document of the table.
std::string in_document(const std::string& where, const std::string& text) {
  if (where == "X") return text;
  std::string content = text;
  if (where[0] == 'T') content = in("NtryDtls", in("TxDtls", content));
  if (where == "TD") content = "<CdtDbtInd>DBIT</CdtDbtInd>" + content;
  if (where[0] == 'T' || where == "E") {
    content =
        "<Acct><Id><IBAN>DE1</IBAN></Id></Acct>" + in("Ntry", "<Amt Ccy=\"EUR\">5</Amt>" + content);
  }
  if (where != "D") content = in("Stmt", content);
  return in("Document", in("BkToCstmrStmt", content));
}

}  // namespace

TEST(Camt, SaysWhatItsElementsSay) {
  for (const row& each : read_table("statements/camt_mapping.tsv", 3)) {
    const std::string where = each[0].str();
    std::string found = outcome_of_text(in_document(where, each[1].str()));
    if (where[0] == 'T' || where == "E") {
      const std::string own = "S account=DE1 // ";
      ASSERT_TRUE(found.starts_with(own)) << each[1].str();
      found.erase(0, own.size());
    }
    EXPECT_EQ(found, each[2].str()) << each[1].str();
  }
}

TEST(Camt, IsRefusedWhenItIsNotWellFormed) {
  for (const row& each : read_table("statements/camt_malformed.tsv", 2)) {
    const std::string reason = each[1].str();
    const bool is_line = reason.find_first_not_of("0123456789") == reason.npos;
    EXPECT_EQ(outcome_of_text(each[0].str()),
              "error=" + (is_line ? "Not well-formed XML (line " + reason + ")" : reason))
        << each[0].str();
  }
}

TEST(Camt, IsRefusedWhereverADocumentIsCut) {
  for (const std::string& whole : samples()) {
    const std::string outcome = outcome_of_text(whole);
    EXPECT_EQ(outcome.find("error="), outcome.npos);
    const std::size_t root_end = whole.rfind('>');
    for (std::size_t size = 1; size <= root_end; ++size) {
      const std::string cut = outcome_of_text(whole.substr(0, size));
      ASSERT_TRUE(cut.starts_with("error=Not well-formed XML (line ")) << size << ' ' << cut;
    }
    EXPECT_EQ(outcome_of_text(whole.substr(0, root_end + 1)), outcome);
  }
}

// Read or refused: a sanitizer sees every step past the text.
TEST(Camt, SurvivesDamagedDocuments) {
  const std::vector<std::string> whole = samples();
  std::mt19937 random(20261123);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  const std::string pieces = "<>&;\"'/!?[]-\r\n \xC3:=#x";
  std::size_t read = 0;
  std::size_t refused = 0;
  for (int left = 10000; left > 0; --left) {
    std::string text = whole[below(3)];
    for (std::size_t damages = 1 + below(3); damages > 0; --damages) {
      const std::size_t place = below(text.size());
      const std::size_t length = below(30);
      switch (below(4)) {
        case 0:
          text[place] = static_cast<char>(below(256));
          break;
        case 1:
          text.insert(place, 1, pieces[below(pieces.size())]);
          break;
        case 2:
          text.erase(place, length);
          break;
        default:
          text.insert(below(text.size()), text.substr(place, length));
      }
    }
    ++(outcome_of_text(text).find("error=") == 0 ? refused : read);
  }
  EXPECT_GT(read, 300u);
  EXPECT_GT(refused, 3000u);
}

TEST(Camt, IsWhatBeginsAsXmlDoes) {
  struct detected {
    std::string text;
    std::string error;
  };
  using namespace std::string_literals;
  const std::string no_camt = "No camt document";
  const std::string wide = "Unsupported encoding: UTF-16";
  const detected table[] = {
      {"<a/>", no_camt},
      {"\xEF\xBB\xBF\r\n \t<a/>", no_camt},
      {"\xFF\xFE<\0a\0"s, wide},
      {"\xFE\xFF\0<\0a"s, wide},
      {"<\0a\0"s, wide},
      {"\xEF\xBB\xBF\r\n:20:<a/>\r\n", ""},
      {"a<a/>", ""},
  };
  for (const detected& each : table) {
    const temporary_file file(each.text);
    const parser_ptr parser = new_parser();
    load(parser, file.path, TIVEX_FORMAT_DETECT);
    EXPECT_EQ(tivex_stmt_parser_getError(parser.get()), each.error) << each.text;
  }
}

TEST(Camt, NestsElementsInside256Others) {
  const auto nested = [](std::size_t depth) {
    std::string text;
    for (std::size_t level = 0; level < depth; ++level) text += "\n<a>";
    for (std::size_t level = 0; level < depth; ++level) text += "</a>";
    return in("Document", "<BkToCstmrStmt><Stmt><Id>S</Id>" + text + "</Stmt></BkToCstmrStmt>");
  };
  EXPECT_EQ(outcome_of_text(nested(253)), "S reference=S");
  EXPECT_EQ(outcome_of_text(nested(254)), "error=Elements nested too deep (line 255)");
}

TEST(Camt, ComparesHoweverManyAttributesThereAre) {
  std::string attributes;
  for (int number = 0; number < 1000; ++number) {
    attributes += (number % 100 == 0 ? "\n" : " ") + ("a" + std::to_string(number)) + "='&lt;'";
  }
  const std::string behind = " Ccy='EUR'>5</Amt></Ntry></Stmt></BkToCstmrStmt></Document>";
  const std::string text = "<Document><BkToCstmrStmt><Stmt><Ntry><Amt" + attributes;
  EXPECT_EQ(outcome_of_text(text + behind), "amount=5");
  EXPECT_EQ(outcome_of_text(text + "\n\n b='' a777='' a1=''" + behind),
            "error=Not well-formed XML (line 13)");
}

TEST(Camt, TakesAttributesOfAnyLength) {
  const std::size_t length = 100000;
  std::string currency;
  for (std::size_t letters = 0; letters < length; ++letters) currency += "&#65;";
  const std::string amount = "<Amt Ccy=\"" + currency + "\">7</Amt>";
  EXPECT_EQ(outcome_of_text(in_document("T", in("AmtDtls", in("InstdAmt", amount)))),
            "S account=DE1 // amount=5 // oamt=" + std::string(length, 'A') + "7");
}

TEST(Camt, LosesNothingWhenMemoryIsExhausted) {
  std::string attributes;
  for (int number = 0; number < 9; ++number) attributes += " a" + std::to_string(number) + "=''";
  const std::string texts =
      "<RmtInf><Ustrd>SECRET</Ustrd><Ustrd>" + std::string(5000, 'x') + "</Ustrd></RmtInf>";
  const std::string entry =
      in("Ntry", "<Amt>2</Amt>" + in("NtryDtls", in("TxDtls", "<Amt>1</Amt>" + texts) +
                                                     in("TxDtls", "<Amt>1</Amt>" + texts)));
  std::string statement;
  for (int count = 0; count < 20; ++count) statement += entry;
  const temporary_file file("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><Document" +
                            attributes + ">" + in("BkToCstmrStmt", in("Stmt", statement)) +
                            "</Document>");
  bool happened = true;
  std::set<std::string> errors;
  const runtime_control::released_text_watch watch("SECRET");
  for (std::size_t n = 1; happened; ++n) {
    const runtime_control::failing_allocation failing(n);
    const parser_ptr parser = new_parser();
    if (!parser) continue;
    const int result =
        tivex_stmt_parser_load(parser.get(), TIVEX_FORMAT_CAMT, file.path.string().c_str());
    happened = failing.happened();
    EXPECT_EQ(result, happened ? 0 : 1) << n;
    EXPECT_EQ(tivex_stmt_parser_getStatement(parser.get()) == nullptr, happened) << n;
    const std::string error = tivex_stmt_parser_getError(parser.get());
    errors.insert(error.substr(0, error.find(" bytes")));
  }
  EXPECT_EQ(errors, (std::set<std::string>{
                        "", "Error while allocating " + std::to_string(sizeof(tivex::mt940_state)),
                        "Failed to allocate " + std::to_string(fs::file_size(file.path))}));
  EXPECT_GT(watch.blocks(), 50u);
  EXPECT_EQ(watch.blocks_with_text(), 0u);
}
