// Time for each transaction added and written, and the memory that it takes. The
// time must not grow with the number of transactions or of dates.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "tivex.h"

namespace {

struct message_free {
  void operator()(tivex_t* msg) const { tivex_free(msg); }
};
using message_ptr = std::unique_ptr<tivex_t, message_free>;

std::vector<std::string> make_dates(int count) {
  std::vector<std::string> dates;
  for (int index = 0; index < count; ++index) {
    char date[16];
    std::snprintf(date, sizeof date, "%04d-%02d-%02d", 2000 + index / 336 % 1000,
                  index / 28 % 12 + 1, index % 28 + 1);
    dates.emplace_back(date);
  }
  return dates;
}

message_ptr fill(int transactions, const std::vector<std::string>& dates) {
  message_ptr msg(tivex_new(TIVEX_CREDIT_TRANSFER));
  for (int index = 0; index < transactions; ++index) {
    // Dates come in no order.
    const std::size_t date = static_cast<std::size_t>(index) * 7919 % dates.size();
    const tivex_keyvalue_t list[] = {{"iban", "NL91ABNA0417164300"},
                                     {"name", "Jutta Mertens"},
                                     {"amount", "2480.15"},
                                     {"date", dates[date].c_str()},
                                     {"ref", "Salary November 2026"},
                                     {"addrTown", "Amsterdam"},
                                     {"addrCC", "NL"},
                                     {nullptr, nullptr}};
    if (tivex_add(msg.get(), list) != 1) std::abort();
  }
  return msg;
}

std::size_t bytes_in_use() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void report(benchmark::State& state, int transactions) {
  state.counters["per_transaction"] = benchmark::Counter(
      transactions, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void add_and_write(benchmark::State& state) {
  const int transactions = static_cast<int>(state.range(0));
  const std::vector<std::string> dates = make_dates(static_cast<int>(state.range(1)));
  tivex_init(TIVEX_OPTION_RULEBOOK, "DE-3.7");
  for (auto _ : state) {
    const message_ptr msg = fill(transactions, dates);
    std::free(tivex_toXML(msg.get()));
  }
  report(state, transactions);
}

void write_only(benchmark::State& state) {
  const int transactions = static_cast<int>(state.range(0));
  const std::vector<std::string> dates = make_dates(static_cast<int>(state.range(1)));
  tivex_init(TIVEX_OPTION_RULEBOOK, "DE-3.7");
  const std::size_t before = bytes_in_use();
  const message_ptr msg = fill(transactions, dates);
  state.counters["record_bytes"] =
      static_cast<double>(bytes_in_use() - before) / static_cast<double>(transactions);
  for (auto _ : state) std::free(tivex_toXML(msg.get()));
  report(state, transactions);
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->ArgNames({"transactions", "dates"});
  bench->Args({1000, 10})
      ->Args({100000, 10})
      ->Args({100000, 1000})
      ->Args({100000, 100000})
      ->Args({500000, 3});
  bench->Unit(benchmark::kMillisecond);
}
BENCHMARK(add_and_write)->Apply(sizes);
BENCHMARK(write_only)->Apply(sizes);

}  // namespace
