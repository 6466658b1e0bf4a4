// Reading statement files: what the system may answer.

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

#include "statements/statement_files.h"
#include "support/runtime_control.h"

namespace {

namespace fs = std::filesystem;

std::string refused(const std::string& what, int error) {
  return "load=0\nerror=" + what + ": " + std::strerror(error) + '\n';
}

}  // namespace

TEST(InputFile, TellsWhyItCannotBeRead) {
  const int descriptor = next_descriptor();
  EXPECT_EQ(outcome_of("no/such/file"), refused("Can't open input file", ENOENT));
  EXPECT_EQ(outcome_of(fs::path()), refused("Can't open input file", EFAULT));
#ifdef _WIN32
  EXPECT_EQ(outcome_of(fs::temp_directory_path()), refused("Can't open input file", EACCES));
#else
  EXPECT_EQ(outcome_of("/tmp"), refused("Error while reading from file", EISDIR));
#endif
  {
    runtime_control::file_control files;
    files.status_error = EIO;
    EXPECT_EQ(outcome_of(example), refused("Can't stat input file", EIO));
    EXPECT_EQ(files.reads, 0u);
  }
  EXPECT_EQ(next_descriptor(), descriptor) << "a file was left open";
}

TEST(InputFile, ArrivesInPieces) {
  const std::string whole = outcome_of(example);
  for (const std::size_t longest : {std::size_t{1}, std::size_t{100}}) {
    runtime_control::file_control files;
    files.longest_read = longest;
    files.failing_read = 3;
    files.read_error = EINTR;
    EXPECT_EQ(outcome_of(example), whole);
    EXPECT_EQ(files.bytes, fs::file_size(example));
    EXPECT_FALSE(files.without_waiting);
  }
}

TEST(InputFile, IsWipedWhenItCannotBeReadToTheEnd) {
  const std::size_t before = content_of(example).find("SVWZ+") + 100;
  for (const std::size_t failing : {1u, 2u}) {
    runtime_control::file_control files;
    files.longest_read = before;
    files.failing_read = failing;
    files.read_error = EIO;
    const runtime_control::released_text_watch watch("SVWZ+");
    EXPECT_EQ(outcome_of(example), refused("Error while reading from file", EIO));
    EXPECT_EQ(files.bytes, (failing - 1) * before);
    EXPECT_EQ(watch.blocks(), 3u) << "parser, state and text";
    EXPECT_EQ(watch.blocks_with_text(), 0u);
  }
}
