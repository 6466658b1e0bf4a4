// The progress line: standard error is a terminal, the input comes as it is fed.
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

#include "program.h"

namespace {

class terminal_run {
 public:
  terminal_run() {
    char name[256];
    if (openpty(&terminal_, &program_end_, name, nullptr, nullptr) != 0) std::abort();
    const std::string line =
        "'" TIVEX_PROGRAM "' credit-transfer --name A --iban DE89370400440532013000 --lenient - 2>";
    input_ = popen((line + name + " >/dev/null").c_str(), "w");
  }
  ~terminal_run() { close(terminal_); }

  void feed(const std::string& text) {
    EXPECT_GT(std::fputs(text.c_str(), input_), 0);
    EXPECT_EQ(std::fflush(input_), 0);
  }
  // Returns what appears within the time, or up to the end.
  std::string watch(int milliseconds) {
    char seen[4096];
    pollfd terminal{terminal_, POLLIN, 0};
    if (poll(&terminal, 1, milliseconds) <= 0) return {};
    const ssize_t count = read(terminal_, seen, sizeof seen);
    return {seen, count < 0 ? 0 : static_cast<std::size_t>(count)};
  }
  std::string finish() {
    EXPECT_EQ(pclose(input_), 0);
    close(program_end_);
    std::string screen;
    for (std::string seen; !(seen = watch(-1)).empty();) screen += seen;
    return screen;
  }

 private:
  int terminal_ = -1;
  int program_end_ = -1;
  FILE* input_ = nullptr;
};

TEST(Progress, AppearsWhenReadingLastsAndIsCleared) {
  using clock = std::chrono::steady_clock;
  terminal_run program;
  const auto start = clock::now();
  program.feed("iban,amount\n");
  std::string screen;
  while (screen.empty() && clock::now() - start < std::chrono::seconds(60)) {
    program.feed(with_ibans("@,1\n"));
    screen = program.watch(50);
  }
  EXPECT_GE(clock::now() - start, std::chrono::seconds(1));
  ASSERT_TRUE(screen.starts_with('\r') && screen.ends_with(" rows read")) << screen;
  std::string cleared = "\r";
  cleared.append(screen.size() - 1, ' ').append("\rtransactions ");
  screen += program.finish();
  EXPECT_TRUE(contains(screen, cleared)) << screen;
}

TEST(Progress, DoesNotAppearForAShortFile) {
  terminal_run program;
  program.feed(with_ibans("iban,amount\n@,1\n"));
  EXPECT_TRUE(program.finish().starts_with("transactions "));
}

}  // namespace
