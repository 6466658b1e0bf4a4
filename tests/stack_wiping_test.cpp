// No account number is left on the stack by the calls that compute with one.

#include <gtest/gtest.h>
#include <ucontext.h>

#include <cstring>
#include <string>

#include "support/table.h"
#include "tivex.h"

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define TIVEX_STACKS_ARE_INSTRUMENTED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define TIVEX_STACKS_ARE_INSTRUMENTED 1
#endif
#endif

namespace {

// The compiler cannot know what is done with the memory.
void keep(void* memory) { asm volatile("" : : "r"(memory) : "memory"); }

// Memory of our own on which a function runs, so that what it leaves can be read.
class own_stack {
 public:
  template <class work>
  void run(const work& called) {
    static const work* running;
    running = &called;
    memory_.assign(1 << 16, unused);
    ucontext_t here, there;
    getcontext(&there);
    there.uc_stack.ss_sp = memory_.data();
    there.uc_stack.ss_size = memory_.size();
    there.uc_link = &here;
    makecontext(
        &there,
        [] {
          // Room for what happens after the call.
          char distance[1024];
          (*running)();
          keep(distance);
        },
        0);
    ASSERT_EQ(swapcontext(&here, &there), 0);
  }

  // Any part of the number that is too long to be there by chance; zeros may be.
  bool holds_part_of(const std::string& number) const {
    constexpr std::size_t part_length = 5;
    const std::size_t used = memory_.find_first_not_of(unused);
    EXPECT_GT(used, 0u) << "too small";
    for (std::size_t at = 0; at + part_length <= number.size(); ++at) {
      const std::string part = number.substr(at, part_length);
      if (part.find("000") == part.npos && memory_.find(part, used) != memory_.npos) return true;
    }
    return false;
  }

 private:
  static constexpr char unused = '\x5A';
  std::string memory_;
};

[[gnu::noinline]] void leave_on_stack(const char* text) {
  char copy[100];
  std::strcpy(copy, text);
  keep(copy);
}

class StackWiping : public testing::Test {
 protected:
  void SetUp() override {
#ifdef TIVEX_STACKS_ARE_INSTRUMENTED
    GTEST_SKIP() << "the sanitizer keeps locals elsewhere";
#endif
  }
  own_stack stack_;
};

}  // namespace

TEST_F(StackWiping, IsSeenWhereItIsMissing) {
  stack_.run([] { leave_on_stack("7364918250"); });
  EXPECT_TRUE(stack_.holds_part_of("7364918250"));
}

TEST_F(StackWiping, LeavesNoAccountOfAnAccountCheck) {
  // 000: method C7 makes a second account.
  for (const char* const account : {"7364918253", "0003649182", "364918"}) {
    for (int method = 0; method < 256; ++method) {
      stack_.run([=] { tivex_account_check(account, method); });
      EXPECT_FALSE(stack_.holds_part_of(account)) << account << " 1 " << std::hex << method;
      stack_.run([=] { tivex_account_check2(account, "37040044", method); });
      EXPECT_FALSE(stack_.holds_part_of(account)) << account << " 2 " << std::hex << method;
    }
  }
}

// Every rule, with accounts that it replaces.
TEST_F(StackWiping, LeavesNoAccountOfAConversionOrAnIbanCheck) {
  int converted = 0;
  for (const row& r : read_table("conversions.tsv", 8)) {
    char iban[35] = {};
    int result = 0;
    stack_.run([&] {
      result = tivex_iban_convert(r[1].c_str(), r[2].c_str(), r[3].c_str(), iban, nullptr);
    });
    EXPECT_FALSE(stack_.holds_part_of(r[2].str())) << r[3].str() << ' ' << r[2].str();
    if (result != 1) continue;
    ++converted;
    EXPECT_FALSE(stack_.holds_part_of(iban + 12)) << iban;
    stack_.run([&] { tivex_iban_check(iban); });
    EXPECT_FALSE(stack_.holds_part_of(iban + 12)) << iban;
  }
  EXPECT_GT(converted, 100);
}
