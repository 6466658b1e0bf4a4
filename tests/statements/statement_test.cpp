// Bank statements: what each line of a file becomes, the parser's life, hostile files.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>

#include "statements/load_file.h"
#include "statements/mt940.h"
#include "statements/mt940_text.h"
#include "statements/statement_dump.h"
#include "support/runtime_control.h"
#include "support/table.h"

namespace {

namespace fs = std::filesystem;

struct parser_deleter {
  void operator()(tivex_stmt_parser_t* parser) const { tivex_stmt_parser_free(parser); }
};
using parser_ptr = std::unique_ptr<tivex_stmt_parser_t, parser_deleter>;

parser_ptr new_parser() { return parser_ptr(tivex_stmt_parser_new()); }

int load(const parser_ptr& parser, const fs::path& path) {
  return tivex_stmt_parser_load(parser.get(), TIVEX_FORMAT_MT940, path.c_str());
}

// Result and error text of a load, and what was read.
std::string outcome_of(const fs::path& path) {
  const parser_ptr parser = new_parser();
  const int result = load(parser, path);
  const std::string error = tivex_stmt_parser_getError(parser.get());
  return "load=" + std::to_string(result) + '\n' + (error.empty() ? "" : "error=" + error + '\n') +
         dump_of(tivex_stmt_parser_getStatement(parser.get()));
}

// A file that is there as long as the object lives.
struct temporary_file {
  const fs::path path =
      fs::temp_directory_path() / ("tivex_statement_" + std::to_string(::getpid()));
  explicit temporary_file(const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
  }
  ~temporary_file() { fs::remove(path); }
};

std::string content_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

const fs::path example = fs::path(TIVEX_SOURCE) / "../examples/statement.sta";

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
  EXPECT_EQ(tivex_stmt_parser_load(other.get(), 2, example.c_str()), 0);
  EXPECT_STREQ(tivex_stmt_parser_getError(other.get()), "Format not (yet) supported");
  EXPECT_EQ(load(other, example), 0);
  EXPECT_STREQ(tivex_stmt_parser_getError(other.get()), "Parser already used");

  EXPECT_EQ(tivex_stmt_parser_load(nullptr, 1, example.c_str()), 0);
  EXPECT_EQ(tivex_stmt_parser_getStatement(nullptr), nullptr);
  EXPECT_STREQ(tivex_stmt_parser_getError(nullptr), "invalid tivex_stmt_parser_t handle");
  tivex_stmt_parser_free(nullptr);
}

TEST(StatementParser, TellsWhyAFileCannotBeRead) {
  const std::string no_file = "error=Can't open input file: " + std::string(std::strerror(ENOENT));
  EXPECT_EQ(outcome_of("no/such/file"), "load=0\n" + no_file + '\n');
  EXPECT_EQ(outcome_of("/tmp"), "load=0\nerror=Error while reading from file: " +
                                    std::string(std::strerror(EISDIR)) + '\n');
  const parser_ptr parser = new_parser();
  EXPECT_EQ(tivex_stmt_parser_load(parser.get(), 1, nullptr), 0);
  EXPECT_EQ(std::string(tivex_stmt_parser_getError(parser.get())).find("Can't open input file: "),
            0u);
  // Nobody writes into the pipe: opening it must not wait.
  const temporary_file name("");
  fs::remove(name.path);
  ASSERT_EQ(::mkfifo(name.path.c_str(), 0600), 0);
  EXPECT_EQ(outcome_of(name.path), "load=0\nerror=Input file is empty\n");
  // A file that states a size and yields less.
  const fs::path shrinking = "/sys/devices/system/cpu/online";
  if (fs::exists(shrinking)) {
    EXPECT_EQ(outcome_of(shrinking), "load=1\n");
  }
}

TEST(StatementParser, NeedsItsStateAndAText) {
  const parser_ptr parser = new_parser();
  EXPECT_EQ(tivex::load_file(*parser, example.c_str()), 0);
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
  bool happened = true;
  std::set<std::string> errors;
  for (std::size_t n = 1; happened; ++n) {
    const runtime_control::failing_allocation failing(n);
    const parser_ptr parser = new_parser();
    if (!parser) continue;
    const int result = load(parser, example);
    happened = failing.happened();
    EXPECT_EQ(result, happened ? 0 : 1) << n;
    EXPECT_EQ(tivex_stmt_parser_getStatement(parser.get()) == nullptr, happened) << n;
    std::string error = tivex_stmt_parser_getError(parser.get());
    errors.insert(error.substr(0, error.find(" bytes")));
  }
  const std::string size = std::to_string(fs::file_size(example));
  EXPECT_EQ(errors, (std::set<std::string>{
                        "", "Error while allocating " + std::to_string(sizeof(tivex::mt940_state)),
                        "Failed to allocate " + size}));
}

TEST(StatementParser, WipesWhatItReleases) {
  std::size_t with_text = 0, blocks = 0;
  {
    const runtime_control::released_text_watch watch("SVWZ+");
    outcome_of(example);
    with_text = watch.blocks_with_text();
    blocks = watch.blocks();
  }
  EXPECT_GT(blocks, 10u);
  EXPECT_EQ(with_text, 0u);
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
