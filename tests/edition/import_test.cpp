// The import of publishers' files: what it takes from them, and what it refuses.

#include <gtest/gtest.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>
#include <vector>

#include "edition.h"
#include "import_command.h"
#include "publishers/field_texts.h"
#include "publishers/import.h"
#include "support/table.h"
#include "whole_file.h"

namespace {

using namespace tivex_edition;
namespace fs = std::filesystem;

using texts = std::vector<std::string>;

const fs::path data = TIVEX_TEST_DATA "/edition/import";
constexpr const char* tables[] = {german_file_name, austrian_file_name, swiss_file_name,
                                  bics_file_name};

std::string content_of(const fs::path& file) {
  fault_list faults;
  std::string content = read_whole_file(file, faults).value_or("");
  EXPECT_EQ(faults.all(), texts());
  return content;
}

class Import : public testing::Test {
 protected:
  // A copy of the publishers' files, and of an edition that they replace.
  void SetUp() override {
    fs::remove_all(scratch_);  // what an aborted run left
    fs::copy(data, scratch_);
    fs::copy(data / "before", folder_);
  }
  void TearDown() override { fs::remove_all(scratch_); }

  std::string file(const char* name) const { return scratch_ / name; }

  void change(const std::string& name, const std::string& from, const std::string& to) const {
    std::string content = content_of(scratch_ / name);
    const std::size_t at = content.find(from);
    ASSERT_NE(at, content.npos) << from;
    content.replace(at, from.empty() ? content.npos : from.size(), to);
    fault_list faults;
    write_whole_file(scratch_ / name, content, faults);
  }

  import_request everything() const {
    return {folder_,
            file("german.txt"),
            "2024-12-09",
            file("german_later.csv"),
            "2025-03-03",
            file("register.csv"),
            file("austrian.csv"),
            "2025-01",
            file("swiss.json"),
            true};
  }

  void expect_edition(const char* expected) const {
    for (const char* const table : tables) {
      EXPECT_EQ(content_of(folder_ / table), content_of(data / expected / table)) << table;
    }
  }

  // The exit status; {} in the arguments is the folder of the publishers' files.
  std::string run(std::string arguments) const {
    for (std::size_t at = 0; (at = arguments.find("{}", at)) != arguments.npos;) {
      arguments.replace(at, 2, scratch_);
    }
    CLI::App program;
    int exit_status = -1;
    add_import(program, exit_status);
    try {
      program.parse("import --folder " + folder_.string() + ' ' + arguments);
    } catch (const CLI::ParseError&) {
      return "wrong";
    }
    return std::to_string(exit_status);
  }

  const fs::path scratch_ =
      fs::temp_directory_path() / ("tivex_import_" + std::to_string(::getpid()));
  const fs::path folder_ = scratch_ / "edition";
};

}  // namespace

TEST_F(Import, TakesEveryFormatAndAgainTheSame) {
  const char* const reports[] = {
      "german_banks.tsv: 8 rows, 4 came, 1 went, 4 changed, 2 skipped: branch rows\n"
      "austrian_banks.tsv: 3 rows, 3 came, 1 went, 0 changed, 1 skipped: not of head offices\n"
      "swiss_banks.tsv: 3 rows, 3 came, 1 went, 0 changed, 1 skipped: entries of other types\n"
      "bics.tsv: 3 rows, 3 came, 1 went, 0 changed, none skipped\n",
      "german_banks.tsv: 8 rows, 0 came, 0 went, 0 changed, 2 skipped: branch rows\n"
      "austrian_banks.tsv: 3 rows, 0 came, 0 went, 0 changed, 1 skipped: not of head offices\n"
      "swiss_banks.tsv: 3 rows, 0 came, 0 went, 0 changed, 1 skipped: entries of other types\n"
      "bics.tsv: 3 rows, 0 came, 0 went, 0 changed, none skipped\n"};
  for (const char* const report : reports) {
    fault_list faults;
    EXPECT_EQ(import_tables(everything(), faults), report);
    EXPECT_EQ(faults.all(), texts());
    expect_edition("after");
  }
}

TEST_F(Import, RefusesFaultyFilesAndWritesNothing) {
  for (const row& refused : read_table("edition/import/faults.tsv", 4)) {
    const std::string name = refused[0].str();
    SCOPED_TRACE(name + ": " + refused[1].str() + " -> " + refused[2].str());
    change(name, refused[1].str(), refused[2].str());
    fault_list faults;
    EXPECT_EQ(import_tables(everything(), faults), "");
    texts expected = split(refused[3].str(), "; ");
    for (std::string& fault : expected) {
      if (fault.starts_with(':')) fault.insert(0, file(name.c_str()));
    }
    EXPECT_EQ(faults.all(), expected);
    expect_edition("before");
    for (const fs::path& changed : {data / name, data / "before"}) {
      fs::copy(changed, changed.has_extension() ? scratch_ : folder_,
               fs::copy_options::overwrite_existing);
    }
  }
}

TEST_F(Import, KeepsTheRuleOfTheLastVersion) {
  EXPECT_EQ(run("--shrink --german {}/german.txt --german-valid-from 2025-04-01"), "0");
  const std::string german = content_of(folder_ / german_file_name);
  EXPECT_NE(german.find("30000003\t\t1\t28\t200\t"), german.npos) << german;
}

TEST_F(Import, RefusesARegisterThatWasCut) {
  const fs::path bics = folder_ / bics_file_name;
  fs::copy(fs::path(TIVEX_EDITION) / bics_file_name, bics, fs::copy_options::overwrite_existing);
  const std::string whole = content_of(bics);
  const texts rows = split(whole.substr(whole.find("\nbic\t") + 1), "\n");
  const auto import_first = [&](std::size_t count, const char* faults) {
    std::string list =
        "25.05.2026\nBIC;Name;SERVICE SCT;SERVICE COR;SERVICE COR1;SERVICE B2B;SERVICE SCC\n";
    for (std::size_t i = 1; i <= count; ++i) {
      list += rows[i].substr(0, rows[i].find('\t')) + ";Bank;1;1;0;0;0\n";
    }
    change("register.csv", "", list);
    import_request request;
    request.folder = folder_;
    request.providers = file("register.csv");
    fault_list found;
    import_tables(request, found);
    EXPECT_EQ(found.all(), *faults == '\0' ? texts() : texts{faults});
  };
  import_first(4000,
               "bics.tsv: 687 of 4687 rows would go, more than 2 in 100; --shrink lets them go");
  import_first(4593,
               "bics.tsv: 94 of 4687 rows would go, more than 2 in 100; --shrink lets them go");
  EXPECT_EQ(content_of(bics), whole);
  import_first(4594, "");
}

TEST_F(Import, LeavesTheDateOfAMasterThatStatesNone) {
  change("swiss.json", "{\"validOn\": \"2025-03-17T03:00:00\", \"entries\": ", "");
  change("swiss.json", "]}", "]");
  EXPECT_EQ(run("--shrink --swiss {}/swiss.json"), "0");
  const std::string swiss = content_of(folder_ / swiss_file_name);
  EXPECT_NE(swiss.find("# valid from: 2023\n# rows: 3\n"), swiss.npos) << swiss;
}

TEST_F(Import, IsACommand) {
  for (const row& line : read_table("edition/import/options.tsv", 2)) {
    EXPECT_EQ(run(line[0].str()), line[1].str()) << line[0].str();
  }
  expect_edition("after");  // the last line imports everything
}

TEST(ImportedTexts, HoldDates) {
  const texts cases[] = {
      {"25.05.2026", "2026-05-25"},
      {"ab 2026-05-25T00:00", "2026-05-25"},
      {"x20260525;", "2026-05-25"},
      {"120260525 1.2.2026", ""},
      {"31.04.2026 01.05.2026", "2026-05-01"},
      {"2026-05", ""},
      {"2026-05-251", ""},
      {"", ""},
  };
  for (const texts& date : cases) EXPECT_EQ(date_in(date[0]), date[1]) << date[0];
}
