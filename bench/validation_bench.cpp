// Time of a validation.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <iterator>

#include "tivex.h"

namespace {

void iban_check(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tivex_iban_check("GB29NWBK60161331926819"));
}
BENCHMARK(iban_check)->Threads(1)->Threads(2)->UseRealTime();

// The bank is looked up and its method checks the account: 00, 06, 13, 24, 63, 76, 88, C0.
constexpr const char* german_ibans[] = {
    "DE19350500002173054921", "DE24370695200040951385", "DE24500400110062098481",
    "DE24600100700055404360", "DE95291726550037242572", "DE84680800300008349576",
    "DE83701693330071033603", "DE64800537220032462190",
};

void german_iban_check(benchmark::State& state) {
  std::size_t next = 0;
  for (auto _ : state) {
    if (tivex_iban_check(german_ibans[next]) != 1) state.SkipWithError("an IBAN is not valid");
    if (++next == std::size(german_ibans)) next = 0;
  }
}
BENCHMARK(german_iban_check)->Threads(1)->Threads(2)->UseRealTime();

}  // namespace
