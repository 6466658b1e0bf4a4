// Reading statement files where POSIX rules: pipes, leases, descriptors.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <thread>

#include "statements/statement_files.h"
#include "support/runtime_control.h"

namespace {

namespace fs = std::filesystem;

std::uintmax_t available_memory() {
  std::ifstream file("/proc/meminfo");
  std::string word;
  std::uintmax_t kibibytes = 0;
  while (word != "MemAvailable:" && file >> word) {
  }
  file >> kibibytes;
  return kibibytes * 1024;
}

}  // namespace

TEST(InputFile, IsNotWaitedForWhereNothingComes) {
  const int descriptor = next_descriptor();
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
  EXPECT_EQ(next_descriptor(), descriptor) << "a file was left open";
}

TEST(InputFile, MayTakeThePlaceOfStandardInput) {
  const std::string whole = outcome_of(example);
  const int kept = ::dup(STDIN_FILENO);
  ::close(STDIN_FILENO);
  EXPECT_EQ(outcome_of(example), whole);
  EXPECT_EQ(next_descriptor(), STDIN_FILENO) << "it was left open";
  if (kept < 0) return;
  ::dup2(kept, STDIN_FILENO);
  ::close(kept);
}

// Who holds a lease on a file is told when another wants to open it, and is waited for.
TEST(InputFile, IsWaitedForWhileItsLeaseEnds) {
  const temporary_file file(content_of(example));
  const int held = ::open(file.path.c_str(), O_RDWR);
  ASSERT_GE(held, 0);
  sigset_t told, mask;
  sigemptyset(&told);
  sigaddset(&told, SIGIO);
  ASSERT_EQ(pthread_sigmask(SIG_BLOCK, &told, &mask), 0);
  const bool leased = ::fcntl(held, F_SETLEASE, F_WRLCK) == 0;
  if (leased) {
    std::thread holder([held, &told] {
      const timespec limit = {10, 0};
      sigtimedwait(&told, nullptr, &limit);
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      ::close(held);
    });
    EXPECT_EQ(outcome_of(file.path), outcome_of(example));
    holder.join();
  } else {
    ::close(held);
  }
  // Told once for each attempt to open.
  const timespec none = {};
  while (sigtimedwait(&told, nullptr, &none) > 0) {
  }
  pthread_sigmask(SIG_SETMASK, &mask, nullptr);
  if (!leased) GTEST_SKIP() << "the file system knows no leases";
}

// More than one call can read, and more than an int can count. The text ends where the
// file's zeros begin.
TEST(InputFile, MayHoldMoreThanTwoGibibytes) {
#ifdef TIVEX_SANITIZED
  GTEST_SKIP() << "takes too much memory under a sanitizer";
#endif
  constexpr std::uintmax_t size = (std::uintmax_t{1} << 31) + 4711;
  if (sizeof(void*) < 8 || available_memory() < 2 * size) GTEST_SKIP() << "takes too much memory";
  const temporary_file file(content_of(example));
  fs::resize_file(file.path, size);
  const runtime_control::file_control files;
  EXPECT_EQ(outcome_of(file.path), outcome_of(example));
  EXPECT_EQ(files.bytes, size + fs::file_size(example));
}

// Its size is told in full where memory is counted in 32 bits.
TEST(InputFile, MayBeTooLargeForMemory) {
  if (sizeof(void*) > 4) GTEST_SKIP() << "every file fits";
  const temporary_file file("");
  for (const std::uintmax_t size : {(std::uintmax_t{1} << 31) + 4711, (std::uintmax_t{1} << 32) - 1,
                                    (std::uintmax_t{1} << 32) + 4711}) {
    fs::resize_file(file.path, size);
    EXPECT_EQ(outcome_of(file.path),
              "load=0\nerror=Failed to allocate " + std::to_string(size) + " bytes\n");
  }
}
