// MT940 as banks write it: what becomes of each line, what may never be lost, and files
// that keep to the prescribed form.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <random>
#include <set>
#include <utility>

#include "core/wiped_object.h"
#include "statements/formats.h"
#include "statements/statement_dump.h"
#include "statements/statement_files.h"
#include "support/runtime_control.h"
#include "support/table.h"

namespace {

constexpr int dialects = TIVEX_FORMAT_MT940_DIALECTS;

const std::string entry_head = ":20:R\r\n:61:2611021102D12,34NTRFREF\r\n";
const std::string entry_fields[] = {"value_date=2,10,126", "booking_date=2,10,126", "amount=-12.34",
                                    "type_code=TRF", "customer_ref=REF"};

std::string repeated(const std::string& part, std::size_t times) {
  std::string text;
  for (; times > 0; --times) text += part;
  return text;
}

// What a load brings, without a file.
parser_ptr parsed(const std::string& text, int format = dialects) {
  parser_ptr parser = new_parser();
  parser->mt940 = tivex::make_wiped<tivex::mt940_state>().release();
  tivex::text_block block(text.size() + 1);
  std::memcpy(block.text, text.c_str(), text.size() + 1);
  block.length = text.size();
  const int result = tivex::find_format(format)(*parser, block);
  EXPECT_EQ(result, text.empty() || text[0] == '\0' ? 0 : 1);
  if (result == 1) {
    parser->mt940->text = std::exchange(block.text, nullptr);
    parser->mt940->size = block.size;
  }
  return parser;
}

std::string records_of(const std::string& text, int format = dialects) {
  return dump_of(tivex_stmt_parser_getStatement(parsed(text, format).get()));
}

// With \r, \n, \\ and \xHH as bytes.
std::string unescaped(const std::string& written) {
  std::string text;
  for (std::size_t at = 0; at < written.size(); ++at) {
    if (written[at] != '\\') {
      text += written[at];
    } else if (written[++at] == 'x') {
      text += static_cast<char>(std::stoi(written.substr(at + 1, 2), nullptr, 16));
      at += 2;
    } else {
      text += written[at] == 'r'   ? '\r'
              : written[at] == 'n' ? '\n'
              : written[at] == 't' ? '\t'
                                   : '\\';
    }
  }
  return text;
}

struct dialect_case {
  std::string name;
  bool is_information = false;
  std::string line_end = "\r\n";
  std::string text;
  std::string expected;
};

std::vector<dialect_case> all_cases() {
  std::vector<dialect_case> cases;
  for (const std::string& line : split(read_data("statements/dialects.cases"), "\n")) {
    if (line.empty() || line[0] == '#') continue;
    if (line[0] == '=') {
      const std::string kind = line.substr(2, line.find(':') - 2);
      dialect_case begun;
      begun.name = line;
      begun.is_information = kind == "86";
      if (kind == "LF") begun.line_end = "\n";
      if (kind == "CR") begun.line_end = "\r";
      if (kind == "raw") begun.line_end = "";
      begun.text = begun.is_information ? entry_head : "";
      begun.expected = "load=1\n";
      cases.push_back(begun);
    } else if (line[0] == '|') {
      cases.back().text += unescaped(line.substr(1)) + cases.back().line_end;
    } else {
      cases.back().expected += line + '\n';
    }
  }
  for (dialect_case& each : cases) {
    if (each.is_information) each.text += "-\r\n";
  }
  return cases;
}

// What the lines behind tag 61 brought.
std::string information_of(const std::string& dump) {
  std::string fields;
  for (std::string line : split(dump, "\n")) {
    const std::string prefix = "stmt 0 tx 0 ";
    if (line.empty() || (line.starts_with("stmt") && !line.starts_with(prefix))) continue;
    if (line.starts_with(prefix)) line.erase(0, prefix.size());
    const bool is_of_head =
        std::find(std::begin(entry_fields), std::end(entry_fields), line) != std::end(entry_fields);
    if (!is_of_head) fields += line + '\n';
  }
  return fields;
}

std::size_t number_of_files(std::size_t ordinary) {
  const char* const wanted = std::getenv("TIVEX_DIALECT_FILES");
  return wanted == nullptr ? ordinary : static_cast<std::size_t>(std::atoll(wanted));
}

template <std::size_t count>
const std::string& any_of(std::mt19937& random, const std::string (&choices)[count]) {
  return choices[random() % count];
}

// Structure has other characters than these.
bool is_content(char c) {
  return (c >= 'a' && c <= 'z') || c == 'Q' || c == '7' || static_cast<signed char>(c) < 0;
}

std::string sorted_content(const std::string& text) {
  std::string content;
  std::copy_if(text.begin(), text.end(), std::back_inserter(content), is_content);
  std::sort(content.begin(), content.end());
  return content;
}

// What may stand in tag 86 and the second line of tag 61, in any order, cut anywhere.
std::string random_information(std::mt19937& random) {
  static const std::string pieces[] = {"?20",
                                       "?21",
                                       "?22",
                                       "?29",
                                       "?60",
                                       "?00",
                                       "?10",
                                       "?30",
                                       "?31",
                                       "?32",
                                       "?33",
                                       "?34",
                                       "?38",
                                       "?35",
                                       "?99",
                                       "<20",
                                       "~32",
                                       "?2",
                                       "?",
                                       "166",
                                       "020",
                                       "SVWZ+",
                                       "EREF+",
                                       "COAM+",
                                       "ABWA+",
                                       "/REMI/",
                                       "/REMI/USTD//",
                                       "/EREF/",
                                       "/NAME/",
                                       "/IBAN/",
                                       "/BIC/",
                                       "/CNTP/",
                                       "/TRTP/",
                                       "/TRCD/",
                                       "/ULTD/",
                                       "/ULTB//NAME/",
                                       "/BENM/",
                                       "/PURP/CD/",
                                       "/CDTRREF/",
                                       "/ADDR/",
                                       "/RTRN/",
                                       "//QQ/",
                                       "/QQ/",
                                       "//QQ",
                                       "/",
                                       "//",
                                       "\r\n",
                                       "\n",
                                       "\r",
                                       "\r\n\r\n",
                                       " ",
                                       "-a",
                                       "}",
                                       ":99:",
                                       ":60:x",
                                       ",",
                                       "a",
                                       "bq",
                                       "x78",
                                       "\xC3\xA4",
                                       "\xE4",
                                       "\xC3",
                                       "\xA4",
                                       "twentytwo seven chars78",
                                       "twentyseven characters are x",
                                       "a text that does not fit anywhere because it is long 7"};
  static const std::string starts[] = {"",        "166",    "?20",     "/REMI/", "/CNTP/",
                                       " 166?00", "020~00", "/BENM//", "/TRTP/"};
  std::string text = any_of(random, starts);
  for (std::size_t count = random() % 12; count > 0; --count) text += any_of(random, pieces);
  return text;
}

// All texts of an entry, those that are cut to their field uncut.
std::string texts_of(const tivex_stmt_tx_t& entry) {
  std::string texts;
  const char* const all[] = {
      entry.booking_text, entry.primanota, entry.bank_code,    entry.account_no, entry.full_name,
      entry.purpose,      entry.eref,      entry.kref,         entry.mref,       entry.cred,
      entry.debt,         entry.purp,      entry.coam,         entry.oamt,       entry.svwz,
      entry.abwa,         entry.abwe,      entry.return_reason};
  for (const char* const text : all) {
    if (text != nullptr) texts += text;
  }
  return texts;
}

// Subfields as they are prescribed, lines broken anywhere.
std::string conforming_information(std::mt19937& random) {
  static const std::string keywords[] = {"EREF+", "KREF+", "MREF+", "CRED+", "DEBT+", "PURP+",
                                         "COAM+", "OAMT+", "SVWZ+", "ABWA+", "ABWE+", "XREF+"};
  static const std::string characters = "abcXYZ0129 ,.-/+ ";
  const auto text = [&](std::size_t longest) {
    std::string made(random() % (longest + 1), ' ');
    for (char& character : made) character = characters[random() % characters.size()];
    return made;
  };
  std::size_t keyword = 0;
  const auto purpose = [&](int number) {
    keyword += random() % 3;
    const bool has_keyword = random() % 2 == 0 && keyword < std::size(keywords);
    return "?" + std::to_string(number) +
           (has_keyword ? keywords[keyword++] + text(22) : text(random() % 3 == 0 ? 30 : 27));
  };
  std::string field = "166?00" + text(27) + "?10" + text(10);
  for (int number = 20; number < 30; ++number) {
    if (random() % 3 != 0) field += purpose(number);
  }
  field += "?30" + text(12) + "?31" + text(34) + "?32" + text(27);
  if (random() % 2 == 0) field += "?33" + text(27);
  if (random() % 2 == 0) field += "?34" + std::to_string(100 + random() % 900);
  if (random() % 2 == 0) field += purpose(60);
  std::string lines = field.substr(0, 60);
  for (std::size_t at = 60; at < field.size(); at += 65) {
    // No line begins with a dash.
    lines += (field[at] == '-' ? "" : "\r\n") + field.substr(at, 65);
  }
  return lines;
}

}  // namespace

TEST(Dialects, AreReadAsEachCaseSays) {
  std::set<std::string> names;
  for (const dialect_case& each : all_cases()) {
    const temporary_file file(each.text);
    const std::string result = outcome_of(file.path, dialects);
    EXPECT_EQ(each.is_information ? information_of(result) : result, each.expected) << each.name;
    EXPECT_TRUE(names.insert(each.name).second) << each.name;
    EXPECT_EQ(outcome_of(file.path, TIVEX_FORMAT_DETECT), result) << each.name;
  }
  EXPECT_GE(names.size(), 80u);
}

// A sanitizer sees every step past the end of what was read.
TEST(Dialects, EndWhereverTheFileIsCut) {
  for (const dialect_case& each : all_cases()) {
    for (std::size_t size = 0; size < each.text.size(); ++size)
      records_of(each.text.substr(0, size));
  }
  EXPECT_EQ(records_of(std::string(1, '\0') + ":20:A"), "");
}

TEST(Dialects, LoseAndDoubleNoLetterAndNoDigit) {
  std::mt19937 random(1940);
  for (std::size_t files = number_of_files(3000); files > 0; --files) {
    std::string text = ":20:R\r\n";
    std::vector<std::string> written;
    for (std::size_t count = 1 + random() % 3; count > 0; --count) {
      std::string information;
      if (random() % 3 == 0) information += "\r\n" + random_information(random);
      for (std::size_t tags = random() % 4; tags > 0; --tags) {
        information += (random() % 8 == 0 ? "\n:NS:" : "\r\n:86:") + random_information(random);
      }
      text += ":61:2611021102D12,34NTRFREF" + information + "\r\n";
      written.push_back(sorted_content(information));
    }
    const parser_ptr parser = parsed(text + ":62F:C261130EUR1,00\r\n");
    const auto* entry = tivex_stmt_parser_getStatement(parser.get())->first_tx;
    for (const std::string& content : written) {
      ASSERT_NE(entry, nullptr) << testing::PrintToString(text);
      ASSERT_EQ(sorted_content(texts_of(*entry)), content) << testing::PrintToString(text);
      entry = entry->next;
    }
  }
}

TEST(Dialects, AgreeWithThePrescribedFormWhereFilesKeepToIt) {
  std::mt19937 random(940);
  for (std::size_t files = number_of_files(1000); files > 0; --files) {
    std::string text = "\r\n:20:R\r\n:25:1/2\r\n:28C:00012/001\r\n:60F:C261101EUR1000,00\r\n";
    for (std::size_t count = random() % 4; count > 0; --count) {
      static const std::string marks[] = {"C", "D", "RC", "RD", "CR", "DR", "RCR"};
      text += ":61:261231" + std::string(random() % 2 == 0 ? "0102" : "") + any_of(random, marks) +
              std::to_string(random() % 100000) + "," + std::to_string(random() % 100) + "NTRF" +
              (random() % 2 == 0 ? "REF" : "NONREF//B1") +
              "\r\n:86:" + conforming_information(random) + "\r\n";
    }
    text += ":62F:D261130EUR1,00\r\n:64:C261130EUR1,00\r\n-\r\n";
    ASSERT_EQ(records_of(text), records_of(text, TIVEX_FORMAT_MT940))
        << testing::PrintToString(text);
  }
}

// Pieces of texts in many places, so that room is needed beside the file's.
TEST(Dialects, LoseAndLeaveNothingWhenMemoryIsExhausted) {
  const std::string entry =
      ":61:261102C1,00NTRFSECRET\r\nSECRET\r\n:86:166?00A?20SECRET?00B?21C\r\n";
  const temporary_file file(":20:R\r\n" + repeated(entry, 100) + entry_head + ":86:166" +
                            repeated("?20SECRET?00x", 3000) + "\r\n-");
  const runtime_control::released_text_watch watch("SECRET");
  bool happened = true;
  std::size_t failures = 0;
  for (std::size_t n = 1; happened; ++n) {
    const runtime_control::failing_allocation failing(n);
    const parser_ptr parser = new_parser();
    if (!parser) continue;
    const int result = load(parser, file.path, dialects);
    happened = failing.happened();
    failures += happened ? 1 : 0;
    EXPECT_EQ(result, happened ? 0 : 1) << n;
    EXPECT_EQ(tivex_stmt_parser_getStatement(parser.get()) == nullptr, happened) << n;
    if (n > 3) {
      EXPECT_STREQ(tivex_stmt_parser_getError(parser.get()), "") << n;
    }
  }
  EXPECT_GE(failures, 12u);
  EXPECT_GT(watch.blocks(), 100u);
  EXPECT_EQ(watch.blocks_with_text(), 0u);
}
