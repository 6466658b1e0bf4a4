// Runs the program with less and less memory: it always says so itself.
#include <gtest/gtest.h>

#include "program.h"

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool sanitized = true;
#elif defined(__has_feature)
constexpr bool sanitized = __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
constexpr bool sanitized = false;
#endif

// Tells of each end but three: done; the line, with the old file in its place; and the
// loader's failure. Then whether the first two were seen.
constexpr const char* with_less_memory = R"sh(
    job() { %; }; told=none; finished=none
    for kilobytes in $(seq 8500 % %); do
      echo old >out
      (ulimit -v $kilobytes; job) >output 2>errors; status=$?
      case $status-$(tail -n 1 errors)-$(head -n 1 out) in
        0-*) finished=some ;;
        '1-Out of memory-old') told=some ;;
        127-*) ;;
        *) echo "$kilobytes: $status"; tail -n 1 errors ;;
      esac
    done
    echo $told $finished; ls -A | grep tivex)sh";

constexpr const char* make_files = R"sh(
    { echo iban,amount,bank_code,account
      seq -f AT611904300234573201,%.0f,37040044,532013000 8000; } >in
    cut -d , -f 1-2 in >payments
    cut -d , -f 3-4 in >accounts
    cut -d , -f 1 in | tail -n +2 >ibans
    { printf '\r\n:20:A\r\n:28C:1\r\n:60F:C261101EUR1,00\r\n'
      yes ':61:261101C1,00NTRFNONREF' | head -n 2000
      printf ':62F:C261130EUR2001,00\r\n'; } >statement)sh";

struct job {
  const char* line;
  const char* step;
  const char* most;
};

std::ostream& operator<<(std::ostream& stream, const job& each) { return stream << each.line; }

class Memory : public testing::TestWithParam<job> {};

TEST_P(Memory, EndsWithOneLineAndTheOldFile) {
  if (sanitized) GTEST_SKIP() << "a sanitizer takes terabytes of addresses";
  const scratch_directory directory;
  run(make_files, "", directory);
  std::string line = with_less_memory;
  for (const char* const part : {GetParam().line, GetParam().step, GetParam().most})
    line.replace(line.find('%'), 1, part);
  const program_result result = run(line, "", directory);
  EXPECT_EQ(result.output, "some some\n");
}

INSTANTIATE_TEST_SUITE_P(
    Program, Memory,
    testing::Values(job{"transfer --lenient --rulebook DE-3.7 payments -o out", "1500", "27000"},
                    job{"tivex iban convert accounts -o out", "1500", "27000"},
                    job{"tivex iban check - <ibans", "50", "16000"},
                    job{"tivex statement --format json statement", "1500", "27000"},
                    job{"tivex statement --format csv statement", "1500", "27000"},
                    job{"tivex statement statement", "1500", "27000"},
                    job{"tivex bank --json DE 10000000", "50", "16000"}));

}  // namespace
