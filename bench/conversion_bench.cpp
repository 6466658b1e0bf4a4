// Time of a conversion from bank code and account to IBAN, beside the lookup, the
// account check and the checksum that it contains.

#include <benchmark/benchmark.h>

#include "iban_kernel.h"
#include "tivex.h"

namespace {

struct pair {
  const char* bank_code;
  const char* account;
};

constexpr pair standard = {"10010010", "1382930134"};  // rule 0
// Rule 35 searches the ranges of former branches to their end, and then a map.
constexpr pair slowest = {"79020076", "7998062987"};

void convert(benchmark::State& state, const pair& subject) {
  char iban[35];
  unsigned char status = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        tivex_iban_convert("DE", subject.account, subject.bank_code, iban, &status));
  }
}
BENCHMARK_CAPTURE(convert, standard_rule, standard);
BENCHMARK_CAPTURE(convert, slowest_rule, slowest);

void lookup_within(benchmark::State& state, const pair& subject) {
  for (auto _ : state) benchmark::DoNotOptimize(tivex_bankid_getMethod(subject.bank_code));
}
BENCHMARK_CAPTURE(lookup_within, standard_rule, standard);
BENCHMARK_CAPTURE(lookup_within, slowest_rule, slowest);

void account_check_within(benchmark::State& state, const pair& subject) {
  const int method = tivex_bankid_getMethod(subject.bank_code);
  for (auto _ : state) {
    benchmark::DoNotOptimize(tivex_account_check2(subject.account, subject.bank_code, method));
  }
}
BENCHMARK_CAPTURE(account_check_within, standard_rule, standard);
BENCHMARK_CAPTURE(account_check_within, slowest_rule, slowest);

void checksum_within(benchmark::State& state, const pair& subject) {
  char iban[35];
  tivex_iban_convert("DE", subject.account, subject.bank_code, iban, nullptr);
  for (auto _ : state) {
    benchmark::DoNotOptimize(iban);
    benchmark::DoNotOptimize(iban_kernel(iban));
  }
}
BENCHMARK_CAPTURE(checksum_within, standard_rule, standard);

}  // namespace
