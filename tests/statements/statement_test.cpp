// Bank statements: what each line of a file becomes, the parser's life, hostile files.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <set>

#include "statements/load_file.h"
#include "statements/mt940/mt940.h"
#include "statements/mt940/mt940_text.h"
#include "statements/statement_files.h"
#include "support/runtime_control.h"

namespace fs = std::filesystem;

namespace {

std::string repeated(const std::string& part, int times) {
  std::string text;
  for (; times > 0; --times) text += part;
  return text;
}

std::string bytes_of(double number) {
  return {reinterpret_cast<const char*>(&number), sizeof number};
}

}  // namespace

// The dumps were made by other means than the library.
TEST(Statements, AreWhatTheLinesOfTheFileSay) {
  std::size_t files = 0;
  for (const auto& entry : fs::directory_iterator(fs::path(TIVEX_TEST_DATA) / "statements")) {
    if (entry.path().extension() != ".sta") continue;
    ++files;
    EXPECT_EQ(outcome_of(entry.path()), content_of(fs::path(entry.path()).replace_extension("txt")))
        << entry.path().filename();
  }
  EXPECT_GE(files, 300u);
}

// A sanitizer sees every step past the end of what was read.
TEST(Statements, EndWhereverTheFileIsCut) {
  const std::string whole = content_of(example);
  ASSERT_GT(whole.size(), 1000u);
  std::size_t statements = 0;
  for (std::size_t size = 1; size <= whole.size(); ++size) {
    const temporary_file cut(whole.substr(0, size));
    const parser_ptr parser = new_parser();
    ASSERT_EQ(load(parser, cut.path), 1);
    std::size_t count = 0;
    for (auto* s = tivex_stmt_parser_getStatement(parser.get()); s != nullptr; s = s->next) ++count;
    ASSERT_GE(count, statements) << "a statement that was there is lost at byte " << size;
    statements = count;
  }
  EXPECT_EQ(statements, 2u);
}

TEST(Statements, OfTheExampleAddUpToTheirClosingBalances) {
  const parser_ptr parser = new_parser();
  ASSERT_EQ(load(parser, example), 1);
  for (auto* s = tivex_stmt_parser_getStatement(parser.get()); s != nullptr; s = s->next) {
    long long cents = std::llround(s->opening_balance * 100);
    for (auto* entry = s->first_tx; entry != nullptr; entry = entry->next) {
      // A reversal takes its amount back.
      cents += (entry->reversal ? -1 : 1) * std::llround(entry->amount * 100);
    }
    EXPECT_EQ(cents, std::llround(s->closing_balance * 100)) << s->reference;
  }
}

TEST(StatementParser, ReadsOneFileInItsLife) {
  const parser_ptr parser = new_parser();
  EXPECT_STREQ(tivex_stmt_parser_getError(parser.get()), "");
  EXPECT_EQ(tivex_stmt_parser_getError(parser.get()), reinterpret_cast<char*>(parser.get()));
  EXPECT_EQ(load(parser, example), 1);
  EXPECT_EQ(load(parser, example), 0);
  EXPECT_STREQ(tivex_stmt_parser_getError(parser.get()), "Parser already used");
  EXPECT_NE(tivex_stmt_parser_getStatement(parser.get()), nullptr) << "what was read stays";

  const parser_ptr other = new_parser();
  EXPECT_EQ(tivex_stmt_parser_load(other.get(), 2, example.string().c_str()), 0);
  EXPECT_STREQ(tivex_stmt_parser_getError(other.get()), "Format not (yet) supported");
  EXPECT_EQ(load(other, example), 0);
  EXPECT_STREQ(tivex_stmt_parser_getError(other.get()), "Parser already used");

  EXPECT_EQ(tivex_stmt_parser_load(nullptr, 1, example.string().c_str()), 0);
  EXPECT_EQ(tivex_stmt_parser_getStatement(nullptr), nullptr);
  EXPECT_STREQ(tivex_stmt_parser_getError(nullptr), "invalid tivex_stmt_parser_t handle");
  tivex_stmt_parser_free(nullptr);
}

TEST(StatementParser, NeedsItsStateAndAText) {
  const parser_ptr parser = new_parser();
  EXPECT_EQ(tivex::load_file(*parser, example.string().c_str()), 0);
  EXPECT_STREQ(tivex_stmt_parser_getError(parser.get()), "MT940 parser not initialized");
  char text[] = "";
  EXPECT_EQ(tivex::mt940_parse(*parser, text), 0);
  const parser_ptr loaded = new_parser();
  ASSERT_EQ(load(loaded, example), 1);
  EXPECT_EQ(tivex::mt940_parse(*loaded, nullptr), 0);
  EXPECT_EQ(tivex::mt940_parse(*loaded, text), 0);
  EXPECT_STREQ(tivex_stmt_parser_getError(loaded.get()), "");
}

TEST(StatementParser, LosesNothingWhenMemoryIsExhausted) {
  // Enough for several blocks of records.
  const temporary_file file(repeated(content_of(example), 100));
  bool happened = true;
  std::set<std::string> errors;
  const runtime_control::released_text_watch watch("SVWZ+");
  for (std::size_t n = 1; happened; ++n) {
    const runtime_control::failing_allocation failing(n);
    const parser_ptr parser = new_parser();
    if (!parser) continue;
    const std::size_t released = watch.blocks();
    const int result = load(parser, file.path);
    happened = failing.happened();
    // Parser, state and text are the first three; nothing may point into a lost text.
    EXPECT_EQ(watch.blocks() - released, happened && n > 3 ? n - 3 : 0) << n;
    EXPECT_EQ(result, happened ? 0 : 1) << n;
    EXPECT_EQ(tivex_stmt_parser_getStatement(parser.get()) == nullptr, happened) << n;
    std::string error = tivex_stmt_parser_getError(parser.get());
    errors.insert(error.substr(0, error.find(" bytes")));
  }
  const std::string size = std::to_string(fs::file_size(file.path));
  EXPECT_EQ(errors, (std::set<std::string>{
                        "", "Error while allocating " + std::to_string(sizeof(tivex::mt940_state)),
                        "Failed to allocate " + size}));
  EXPECT_GT(watch.blocks(), 50u);
  EXPECT_EQ(watch.blocks_with_text(), 0u);
}

// The text of the file, and the amounts of the records, in blocks of every size.
TEST(StatementParser, WipesWhatItReleases) {
  const struct {
    int entries;
    std::size_t blocks_of_records;
  } rows[] = {{50, 4}, {80'000, 11}};
  for (const auto& [entries, blocks_of_records] : rows) {
    const temporary_file file(
        "\r\n:20:R\r\n:60F:C240131EUR76543,21" +
        repeated("\r\n:61:240131C12345,67NTRFSECRET\r\n:61:240131C1,00NTRF", entries) + "\r\n");
    for (const std::string& bytes :
         {std::string("SECRET"), bytes_of(12345.67), bytes_of(76543.21)}) {
      const runtime_control::released_text_watch watch(bytes);
      parser_ptr parser = new_parser();
      ASSERT_EQ(load(parser, file.path), 1);
      const tivex_stmt_t* const statement = tivex_stmt_parser_getStatement(parser.get());
      ASSERT_EQ(statement->opening_balance, 76543.21);
      ASSERT_EQ(statement->first_tx->amount, 12345.67);
      parser.reset();
      if (sizeof(void*) == 8) {
        EXPECT_EQ(watch.blocks(), 3 + blocks_of_records) << "with parser, state and text";
      } else {
        EXPECT_GE(watch.blocks(), 6u) << "records are smaller";
      }
      EXPECT_EQ(watch.blocks_with_text(), 0u) << bytes;
    }
  }
}

TEST(StatementText, IsSearchedOnceForACharacter) {
  char text[] = "ab,cd,e";
  tivex::next_character comma(',', text + 7);
  EXPECT_EQ(comma.find(text), text + 2);
  EXPECT_EQ(comma.find(text + 2), text + 2);
  text[2] = '.';
  EXPECT_EQ(comma.find(text + 1), text + 5) << "the one found before has been replaced";
  EXPECT_EQ(comma.find(text + 6), text + 7) << "none";
  EXPECT_EQ(comma.find(text + 7), text + 7);
}
