// Time of a validation.

#include <benchmark/benchmark.h>

#include "tivex.h"

namespace {

void iban_check(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tivex_iban_check("GB29NWBK60161331926819"));
}
BENCHMARK(iban_check)->Threads(1)->Threads(2)->UseRealTime();

}  // namespace
