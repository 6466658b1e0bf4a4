// The progress line: standard error is a terminal, the input comes as it is fed.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

#include "program.h"

namespace {

class terminal_run {
 public:
  terminal_run() {
    int input[2];
    if (pipe2(input, O_CLOEXEC) != 0) std::abort();
    if (forkpty(&terminal_, nullptr, nullptr, nullptr) == 0) {
      dup2(input[0], 0);
      dup2(open("/dev/null", O_WRONLY), 1);
      execl(TIVEX_PROGRAM, "tivex", "credit-transfer", "--name", "A", "--iban",
            "DE89370400440532013000", "-", nullptr);
      _exit(127);
    }
    close(input[0]);
    input_ = input[1];
  }
  ~terminal_run() {
    close(terminal_);
    wait(nullptr);
  }

  void feed(const std::string& text) {
    EXPECT_EQ(write(input_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  // Returns what appears within the time, or up to the end.
  std::string watch(int milliseconds) {
    std::string seen(4096, '\0');
    pollfd terminal{terminal_, POLLIN, 0};
    if (poll(&terminal, 1, milliseconds) <= 0) return {};
    const ssize_t count = read(terminal_, seen.data(), seen.size());
    return seen.substr(0, count < 0 ? 0 : static_cast<std::size_t>(count));
  }
  std::string finish() {
    close(input_);
    std::string screen;
    for (std::string seen; !(seen = watch(-1)).empty();) screen += seen;
    return screen;
  }

 private:
  int terminal_ = -1;
  int input_ = -1;
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
