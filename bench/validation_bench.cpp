// Time of a check of an IBAN, beside the bare arithmetic and another library.

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <vector>

#include "iban_kernel.h"
#include "tivex.h"

#ifdef TIVEX_BENCH_KTOBLZCHECK
#include <iban.h>
#include <ktoblzcheck.h>
#endif

namespace {

// A valid IBAN of each country but Germany, whose checks ask the directory, too.
std::vector<std::string> ibans_without_german() {
  std::ifstream lines(TIVEX_TEST_DATA "/ibans.tsv");
  std::vector<std::string> ibans;
  for (std::string line; std::getline(lines, line);) {
    const bool valid = line.find('\t') == std::string::npos;
    if (valid && !line.starts_with('#') && !line.starts_with("DE")) ibans.push_back(line);
  }
  return ibans;
}

// The bank is looked up and its method checks the account: 00, 06, 13, 24, 63, 76, 88, C0.
const std::vector<std::string> german_ibans = {
    "DE19350500002173054921", "DE24370695200040951385", "DE24500400110062098481",
    "DE24600100700055404360", "DE95291726550037242572", "DE84680800300008349576",
    "DE83701693330071033603", "DE64800537220032462190",
};
const std::vector<std::string> other_ibans = ibans_without_german();

// Runs one check after the other; reports nanoseconds for each.
template <class checker>
void check_all(benchmark::State& state, const std::vector<std::string>& ibans,
               const checker& check_one) {
  std::size_t next = 0;
  for (auto _ : state) {
    if (!check_one(ibans[next])) state.SkipWithError("an IBAN is not valid");
    if (++next == ibans.size()) next = 0;
  }
}

bool check_iban(const std::string& iban) { return tivex_iban_check(iban.c_str()) == 1; }

void iban_check(benchmark::State& state) { check_all(state, other_ibans, check_iban); }
BENCHMARK(iban_check)->Threads(1)->Threads(2)->UseRealTime();

void iban_check_by_kernel(benchmark::State& state) {
  check_all(state, other_ibans,
            [](const std::string& iban) { return iban_kernel(iban.c_str()) == 1; });
}
BENCHMARK(iban_check_by_kernel)->Threads(1)->Threads(2)->UseRealTime();

void german_iban_check(benchmark::State& state) { check_all(state, german_ibans, check_iban); }
BENCHMARK(german_iban_check)->Threads(1)->Threads(2)->UseRealTime();

#ifdef TIVEX_BENCH_KTOBLZCHECK

// It gets its own strings ready made, the IBAN and the parts of it. Whether the account
// is right it says by the methods that its own bank data name.
void german_iban_check_by_ktoblzcheck(benchmark::State& state) {
  struct german_iban {
    std::string iban, bank_code, account;
  };
  static const IbanCheck ibans;
  static const AccountNumberCheck accounts;
  std::vector<german_iban> cases;
  for (const std::string& iban : german_ibans) {
    cases.push_back({iban, iban.substr(4, 8), iban.substr(12)});
  }
  std::size_t next = 0;
  for (auto _ : state) {
    const german_iban& subject = cases[next];
    if (ibans.check(subject.iban) != IbanCheck::OK) state.SkipWithError("an IBAN is not valid");
    benchmark::DoNotOptimize(accounts.check(subject.bank_code, subject.account));
    if (++next == cases.size()) next = 0;
  }
}
BENCHMARK(german_iban_check_by_ktoblzcheck)->UseRealTime();

#endif

}  // namespace
