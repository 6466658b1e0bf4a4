// Kills the program as soon as a file that it should not leave behind has a name.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "program.h"

namespace {

bool has_temporary_file(const std::string& directory) {
  for (const auto& entry : std::filesystem::directory_iterator(directory))
    if (contains(entry.path().filename(), "tivex-")) return true;
  return false;
}

bool has_files_without_name(const std::string& directory) {
  const int file = open(directory.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
  return file >= 0 && close(file) == 0;
}

void run_and_kill(const std::string& line, int signal, const scratch_directory& directory) {
  const std::string command =
      "cd " + directory / "" + " && TMPDIR=. exec '" TIVEX_PROGRAM "' " + line + " >/dev/null 2>&1";
  const pid_t program = fork();
  if (program == 0) execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
  ASSERT_GT(program, 0);
  while (waitpid(program, nullptr, WNOHANG) == 0)
    if (has_temporary_file(directory / "")) kill(program, signal);
}

class Killed : public testing::TestWithParam<int> {};

TEST_P(Killed, LeavesNoFileBeside) {
  const scratch_directory directory;
  if (GetParam() == SIGKILL && !has_files_without_name(directory / ""))
    GTEST_SKIP() << "files have a name from the start here";
  run("{ echo iban,amount; yes AT611904300234573201,1 | head -n 20000; } >in.csv; "
      "{ printf '\\n:20:A\\n:28C:1\\n'; yes ':61:261101C1,00NTRFNONREF' | head -n 9999; } >in.sta",
      "", directory);
  const std::string transfer =
      "credit-transfer --name A --iban DE89370400440532013000 --message-id M --lenient --rulebook "
      "DE-3.7 in.csv -o "
      "out.xml";
  run_and_kill("statement - <in.sta", GetParam(), directory);
  EXPECT_FALSE(has_temporary_file(directory / ""));
  run_and_kill(transfer, GetParam(), directory);
  EXPECT_FALSE(has_temporary_file(directory / ""));
  const std::string document = read_file(directory / "out.xml");
  EXPECT_TRUE(document.ends_with("</Document>\n"));
  // Nothing holds back SIGKILL in the moment in which an old file is replaced.
  if (GetParam() == SIGKILL) return;
  run("echo old >out.xml", "", directory);
  run_and_kill(transfer, GetParam(), directory);
  EXPECT_FALSE(has_temporary_file(directory / ""));
  EXPECT_EQ(read_file(directory / "out.xml").size(), document.size());
}

INSTANTIATE_TEST_SUITE_P(Program, Killed, testing::Values(SIGKILL, SIGQUIT, SIGXCPU));

}  // namespace
