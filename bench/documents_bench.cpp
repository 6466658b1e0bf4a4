// Time for each transaction added and written, and the memory that it takes. The
// time must not grow with the number of transactions or of dates.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
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

// A message of a type with so many transactions; dates come in no order.
message_ptr fill(int type, int transactions, const std::vector<std::string>& dates) {
  message_ptr msg(tivex_new(type));
  tivex_setIBAN(msg.get(), "NL91ABNA0417164300");
  tivex_setBIC(msg.get(), "ABNANL2A");
  tivex_setName(msg.get(), "Nordlicht");
  tivex_setCreditorIdentifier(msg.get(), "DE98ZZZ09999999999");
  constexpr const char* sequences[] = {"FRST", "RCUR", "OOFF", "FNAL"};
  for (int index = 0; index < transactions; ++index) {
    const std::size_t date = static_cast<std::size_t>(index) * 7919 % dates.size();
    std::vector<tivex_keyvalue_t> list = {{"iban", "NL91ABNA0417164300"},
                                          {"name", "Jutta Mertens"},
                                          {"amount", "2480.15"},
                                          {"date", dates[date].c_str()},
                                          {"ref", "Invoice of November 2026"},
                                          {"addrTown", "Amsterdam"},
                                          {"addrCC", "NL"}};
    if (type == TIVEX_DIRECT_DEBIT) {
      list.insert(
          list.end(),
          {{"seq", sequences[index % 4]}, {"mref", "M-2026-4711"}, {"mdate", "2026-01-31"}});
    }
    list.push_back({nullptr, nullptr});
    if (tivex_add(msg.get(), list.data()) != 1) std::abort();
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

void add_and_write(benchmark::State& state, int type) {
  const int transactions = static_cast<int>(state.range(0));
  const std::vector<std::string> dates = make_dates(static_cast<int>(state.range(1)));
  tivex_init(TIVEX_OPTION_RULEBOOK, "DE-3.7");
  for (auto _ : state) {
    const message_ptr msg = fill(type, transactions, dates);
    std::free(tivex_toXML(msg.get()));
  }
  report(state, transactions);
}

void write_only(benchmark::State& state, int type, unsigned char strict) {
  const int transactions = static_cast<int>(state.range(0));
  const std::vector<std::string> dates = make_dates(static_cast<int>(state.range(1)));
  tivex_init(TIVEX_OPTION_RULEBOOK, "DE-3.7");
  const std::size_t before = bytes_in_use();
  const message_ptr msg = fill(type, transactions, dates);
  state.counters["record_bytes"] =
      static_cast<double>(bytes_in_use() - before) / static_cast<double>(transactions);
  tivex_setStrict(msg.get(), strict);
  for (auto _ : state) {
    char* const document = tivex_toXML(msg.get());
    state.counters["document_bytes"] =
        static_cast<double>(std::strlen(document)) / static_cast<double>(transactions);
    std::free(document);
  }
  report(state, transactions);
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->ArgNames({"transactions", "dates"});
  bench->Args({1000, 10})->Args({10000, 100})->Args({100000, 1000})->Args({500000, 1000});
  bench->Unit(benchmark::kMillisecond);
}
BENCHMARK_CAPTURE(add_and_write, credit_transfers, TIVEX_CREDIT_TRANSFER)->Apply(sizes);
BENCHMARK_CAPTURE(add_and_write, direct_debits, TIVEX_DIRECT_DEBIT)->Apply(sizes);
BENCHMARK_CAPTURE(write_only, credit_transfers, TIVEX_CREDIT_TRANSFER, 0)->Apply(sizes);
BENCHMARK_CAPTURE(write_only, direct_debits, TIVEX_DIRECT_DEBIT, 0)->Apply(sizes);
BENCHMARK_CAPTURE(write_only, strict_credit_transfers, TIVEX_CREDIT_TRANSFER, 1)->Apply(sizes);
BENCHMARK_CAPTURE(write_only, strict_direct_debits, TIVEX_DIRECT_DEBIT, 1)->Apply(sizes);

}  // namespace
