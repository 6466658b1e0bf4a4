// The generator of the directory's tables: what it refuses, and that the
// committed tables are those of data/edition.

#include <gtest/gtest.h>

#include <algorithm>

#include "edition_checks.h"
#include "edition_files.h"
#include "hash_construction.h"
#include "purpose_table.h"
#include "rule_tables.h"
#include "support/table.h"
#include "switch_time.h"
#include "table_sources.h"
#include "whole_file.h"

namespace {

using namespace tivex_edition;
namespace fs = std::filesystem;

using texts = std::vector<std::string>;

const fs::path small_edition = fs::path(TIVEX_TEST_DATA) / "edition/small";

// A folder of its own for the files of one test.
struct scratch_folder {
  fs::path path = fs::temp_directory_path() / ("tivex_edition_" + std::to_string(::getpid()));
  scratch_folder() { fs::create_directories(path); }
  ~scratch_folder() { fs::remove_all(path); }
};

texts lines_of(const std::string& content) { return split(content, "\n"); }

std::vector<source_file> tables_of(const fs::path& folder) {
  fault_list faults;
  const edition facts = read_edition(folder, faults);
  std::vector<source_file> files = generate_tables(facts, faults);
  EXPECT_EQ(faults.all(), texts());
  return files;
}

std::string content_of(const fs::path& file) {
  fault_list faults;
  return read_whole_file(file, faults).value_or("");
}

// A folder of facts with one text replaced by another, once, in one of its files.
void copy_with_change(const fs::path& facts, const fs::path& to, const std::string& file,
                      const std::string& from, const std::string& into) {
  fs::copy(facts, to, fs::copy_options::recursive);
  std::string content = content_of(to / file);
  ASSERT_NE(content.find(from), std::string::npos) << from;
  content.replace(content.find(from), from.size(), into);
  fault_list faults;
  write_whole_file(to / file, content, faults);
  ASSERT_TRUE(faults.empty());
}

}  // namespace

TEST(Generator, MakesTheCommittedTables) {
  fault_list faults;
  const std::pair<const char*, std::vector<source_file>> folders[] = {
      {"directory/data", tables_of(TIVEX_EDITION)},
      {"de_iban/data", generate_rule_tables(TIVEX_RULES, faults)},
      {"xml/data", generate_purpose_table(TIVEX_PURPOSES, faults)}};
  EXPECT_EQ(faults.all(), texts());
  for (const auto& [name, files] : folders) {
    const fs::path folder = fs::path(TIVEX_SOURCE) / name;
    for (const source_file& file : files) {
      EXPECT_TRUE(content_of(folder / file.name) == file.content)
          << file.name << " is not what scripts/edition makes";
    }
    EXPECT_EQ(files.size(), static_cast<std::size_t>(std::distance(fs::directory_iterator(folder),
                                                                   fs::directory_iterator())))
        << "a file that is not generated stands among the tables";
  }
}

TEST(Generator, WritesBackWhatItReads) {
  const scratch_folder scratch;
  fault_list faults;
  const edition facts = read_edition(TIVEX_EDITION, faults);
  write_edition(scratch.path, facts, faults);
  EXPECT_EQ(faults.all(), texts());
  for (const auto& entry : fs::directory_iterator(TIVEX_EDITION)) {
    EXPECT_TRUE(content_of(entry.path()) == content_of(scratch.path / entry.path().filename()))
        << entry.path();
  }
}

TEST(Generator, ChangesOnlyWhatARowChanges) {
  const scratch_folder scratch;
  copy_with_change(small_edition, scratch.path, austrian_file_name, "\tWien\tAT", "\tGraz\tAT");
  const std::vector<source_file> before = tables_of(small_edition);
  const std::vector<source_file> after = tables_of(scratch.path);
  ASSERT_EQ(before.size(), after.size());
  for (std::size_t index = 0; index < before.size(); ++index) {
    const texts old_lines = lines_of(before[index].content);
    const texts new_lines = lines_of(after[index].content);
    ASSERT_EQ(old_lines.size(), new_lines.size());
    std::size_t changed = 0;
    for (std::size_t line = 0; line < old_lines.size(); ++line) {
      changed += old_lines[line] != new_lines[line];
    }
    EXPECT_EQ(changed, before[index].name == "records.cpp" ? 1u : 0u) << before[index].name;
  }
}

TEST(Generator, RefusesWithFileAndLine) {
  for (const row& r : read_table("edition/faults.tsv", 4)) {
    const scratch_folder scratch;
    copy_with_change(small_edition, scratch.path, r[0].str(), r[1].str(), r[2].str());
    fault_list faults;
    const edition facts = read_edition(scratch.path, faults);
    EXPECT_TRUE(generate_tables(facts, faults).empty());
    EXPECT_EQ(faults.all(), split(r[3].str(), "; ")) << r[2].str();
  }
  for (const row& r : read_table("edition/rule_faults.tsv", 4)) {
    const scratch_folder scratch;
    const bool of_purposes = r[0].str() == "at_004.tsv";
    copy_with_change(of_purposes ? TIVEX_PURPOSES : TIVEX_RULES, scratch.path, r[0].str(),
                     r[1].str(), r[2].str());
    fault_list faults;
    const auto generate = of_purposes ? generate_purpose_table : generate_rule_tables;
    EXPECT_TRUE(generate(scratch.path, faults).empty());
    EXPECT_EQ(faults.all(), split(r[3].str(), "; ")) << r[2].str();
  }
}

TEST(Generator, NeedsItsFiles) {
  fault_list faults;
  read_edition("no/such/folder", faults);
  EXPECT_EQ(faults.all().size(), 4u);
  EXPECT_EQ(faults.all().front(), "no/such/folder/german_banks.tsv: cannot be read");
  faults = {};
  write_whole_file("no/such/folder/file", "x", faults);
  EXPECT_EQ(faults.all(), texts{"no/such/folder/file: cannot be written"});
  const scratch_folder scratch;
  faults = {};
  write_whole_file(scratch.path / bics_file_name, "# BICs\n# rows: 0\n", faults);
  read_edition(scratch.path, faults);
  EXPECT_EQ(faults.all().back(), "bics.tsv: the line with the columns' names is missing");
}

TEST(Generator, KnowsWhenADayBeginsInGermany) {
  EXPECT_EQ(start_of_day_in_germany("2025-03-03"), 1740956400);
  EXPECT_EQ(start_of_day_in_germany("2025-03-30"), 1743289200);  // 02:00 becomes 03:00 later
  EXPECT_EQ(start_of_day_in_germany("2025-03-31"), 1743289200 + 23 * 3600);
  EXPECT_EQ(start_of_day_in_germany("2025-10-26"), 1761429600);
  EXPECT_EQ(start_of_day_in_germany("2025-10-27"), 1761429600 + 25 * 3600);
}

TEST(Generator, HashesAnyKeysAndGivesUpOnEqualOnes) {
  texts keys;
  for (int number = 0; number < 101; ++number)
    keys.push_back("_AT" + std::to_string(12345 + number));
  const auto hash = construct_hash(keys);
  ASSERT_NE(hash, nullptr);
  EXPECT_EQ(hash->vertex_values.size(), 125u) << "1.23 for each key, rounded up";
  for (std::size_t index = 0; index < keys.size(); ++index) {
    EXPECT_EQ(tivex::perfect_hash(hash->tables(), keys[index].c_str()), static_cast<int>(index));
  }
  keys.back() = keys.front();
  EXPECT_EQ(construct_hash(keys), nullptr) << "two equal keys";
  keys.back() = "SHORT";
  EXPECT_EQ(construct_hash(keys), nullptr);
}
