// What is shown on terminals only; the input comes as it is fed.
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
  // Of the line each % stands for the terminal.
  explicit terminal_run(const std::string& line) {
    char name[256];
    if (openpty(&terminal_, &program_end_, name, nullptr, nullptr) != 0) std::abort();
    input_ = popen(replaced(line, "%", name).c_str(), "w");
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

constexpr const char* transfer =
    "'" TIVEX_PROGRAM
    "' credit-transfer --name A --iban DE89370400440532013000 --lenient --rulebook DE-3.7 "
    "--without-warning repeated-payment --without-warning old-directory - 2>% "
    ">/dev/null";

TEST(Progress, AppearsWhenReadingLastsAndIsCleared) {
  using clock = std::chrono::steady_clock;
  terminal_run program(transfer);
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
  cleared.append(screen.size() - 1, ' ').append("\rrows   ");
  screen += program.finish();
  EXPECT_TRUE(contains(screen, cleared)) << screen;
}

TEST(Progress, DoesNotAppearForAShortFile) {
  terminal_run program(transfer);
  program.feed(with_ibans("iban,amount\n@,1\n"));
  EXPECT_TRUE(program.finish().starts_with("rows   "));
}

// What the program shows of a missing file and of a statement that does not add up.
std::string screen_of_faults(const std::string& environment) {
  terminal_run program(environment + " '" TIVEX_PROGRAM "' statement missing - >% 2>%; true");
  program.feed(
      "\r\n:20:R\r\n:28C:1\r\n:60F:C261101EUR1,00\r\n:61:261102D3,00NTRFNONREF\r\n"
      ":62F:D261130EUR3,00\r\n");
  return program.finish();
}

TEST(Colours, MarkPlacesOfFaultsAndNegativeAmounts) {
  const std::string screen = screen_of_faults("TERM=xterm NO_COLOR=");
  for (const char* const part :
       {"\x1B[1;31mmissing\x1B[m: Can't open", "2026-11-02  \x1B[31m-3.00\x1B[m\r\n",
        "credits         0.00\r\ndebits          \x1B[31m-3.00\x1B[m\r\n",
        "balance check   \x1B[1;31mopening balance and entries make -2.00, the closing balance is "
        "-3.00\x1B[m\r\n"})
    EXPECT_PRED_FORMAT2(testing::IsSubstring, part, screen);
}

TEST(Colours, AreLeftOutOnRequest) {
  for (const char* const environment :
       {"TERM=xterm NO_COLOR=1", "TERM=dumb NO_COLOR=", "env -u TERM NO_COLOR="}) {
    const std::string screen = screen_of_faults(environment);
    EXPECT_PRED_FORMAT2(testing::IsSubstring, "missing: Can't open", screen);
    EXPECT_PRED_FORMAT2(testing::IsNotSubstring, "\x1B", screen);
  }
}

}  // namespace
