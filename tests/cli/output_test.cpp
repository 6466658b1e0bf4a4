// Where the document goes, and what stays when it cannot go there.
#include <gtest/gtest.h>

#include <fstream>

#include "program.h"

namespace {

namespace fs = std::filesystem;

const std::string good = with_ibans("iban,amount,date\n@,1.10,2026-11-30\n@,2,\n");
const std::string bad = good + "X,1,\n";

std::size_t file_count(const std::string& directory) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(directory), {}));
}

TEST(Output, SummarySaysWhatWasWritten) {
  const scratch_directory directory;
  const std::string target = directory / "out.xml";
  const program_result result = run(transfer + "--rulebook DE-2.9 - -o " + target, good);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors,
            "transactions    2\nsum             3.10 EUR\npayment blocks  2\n"
            "rulebook        DE-2.9 (pain.001.003.03)\nfile            " +
                target + "\n");
  EXPECT_TRUE(read_file(target).ends_with("</Document>\n"));
  EXPECT_TRUE(run(transfer + "-", good).output.ends_with("</Document>\n"));
}

TEST(Output, FileKeepsPermissionsAndLinks) {
  const scratch_directory directory;
  const auto permissions = [&](const char* name) {
    return static_cast<unsigned>(fs::status(directory / name).permissions());
  };
  run("umask 027; " + transfer + "- -o " + directory / "new", good);
  EXPECT_EQ(permissions("new"), 0640u);
  std::ofstream(directory / "old") << "old";
  fs::permissions(directory / "old", fs::perms(0604));
  fs::create_symlink("old", directory / "link");
  fs::create_symlink("later", directory / "dangling");
  for (const char* name : {"link", "dangling"}) {
    EXPECT_EQ(run(transfer + "- -o " + directory / name, good).status, 0);
    EXPECT_TRUE(fs::is_symlink(directory / name));
    EXPECT_TRUE(read_file(directory / name).starts_with("<?xml"));
  }
  EXPECT_EQ(permissions("old"), 0604u);
  EXPECT_TRUE(fs::is_regular_file(directory / "later"));
  EXPECT_EQ(file_count(directory / ""), 5u);
}

TEST(Output, FailureLeavesTheOldFile) {
  const scratch_directory directory;
  const std::string target = directory / "out.xml";
  std::ofstream(target) << "old";
  EXPECT_EQ(run(transfer + "- -o " + target, bad).status, 1);
  const program_result full = run("ulimit -f 1; " + transfer + "- -o " + target, good);
  EXPECT_EQ(full.status, 1);
  EXPECT_EQ(full.errors, target + ": File too large\n");
  EXPECT_EQ(read_file(target), "old");
  EXPECT_EQ(file_count(directory / ""), 1u);
}

TEST(Output, ThatCannotBeWrittenIsNamed) {
  const scratch_directory directory;
  const std::string nowhere = directory / "none/out.xml";
  const std::string folder = directory / "";
  const std::pair<std::string, std::string> cases[] = {
      {"-o " + nowhere, nowhere + ": No such file or directory\n"},
      {"-o " + folder, folder + ": Is a directory\n"},
      {">/dev/full", "standard output: No space left on device\n"},
      {">&-", "standard output: Bad file descriptor\n"},
  };
  for (const auto& [options, errors] : cases) {
    const program_result result = run(transfer + "- " + options, good);
    EXPECT_EQ(result.status, 1) << options;
    EXPECT_EQ(result.errors, errors);
  }
}

TEST(Output, NeverReplacesTheFileRead) {
  const scratch_directory directory;
  const std::string csv = directory / "in.csv";
  std::ofstream(csv) << good;
  const program_result result = run(transfer + csv + " -o " + directory / "./in.csv");
  EXPECT_EQ(result.status, 2);
  EXPECT_TRUE(contains(result.errors, " is the file to read\n")) << result.errors;
  EXPECT_EQ(read_file(csv), good);
}

// A pipe of the test's own: a program that fails here must not replace a device.
TEST(Output, ToNoRegularFileIsWrittenDirectly) {
  const scratch_directory directory;
  const std::string pipe = directory / "pipe";
  const std::string reader = "mkfifo " + pipe + "; timeout 10 cat " + pipe + " & ";
  const program_result result = run(reader + transfer + "- -o " + pipe + "; wait", good);
  EXPECT_TRUE(result.output.ends_with("</Document>\n"));
  EXPECT_TRUE(fs::is_fifo(pipe));
}

}  // namespace
