// Time for each transaction added and written, and the memory that it takes. The
// time must not grow with the number of transactions or of dates.

#include "messages.h"

namespace {

void add_only(benchmark::State& state, int type) {
  const int transactions = static_cast<int>(state.range(0));
  const std::vector<std::string> dates = make_dates(static_cast<int>(state.range(1)));
  for (auto _ : state) {
    benchmark::DoNotOptimize(fill(type, transactions, dates));
  }
  report_each(state, transactions);
}

void add_and_write(benchmark::State& state, int type) {
  const int transactions = static_cast<int>(state.range(0));
  const std::vector<std::string> dates = make_dates(static_cast<int>(state.range(1)));
  for (auto _ : state) {
    const message_ptr msg = fill(type, transactions, dates);
    std::free(tivex_toXML(msg.get()));
  }
  report_each(state, transactions);
}

void write_only(benchmark::State& state, int type, unsigned char strict) {
  const int transactions = static_cast<int>(state.range(0));
  const std::vector<std::string> dates = make_dates(static_cast<int>(state.range(1)));
  const std::size_t before = bytes_in_use();
  const message_ptr msg = fill(type, transactions, dates);
  state.counters["record_bytes"] =
      static_cast<double>(bytes_in_use() - before) / static_cast<double>(transactions);
  tivex_setStrict(msg.get(), strict);
  state.counters["document_bytes"] =
      static_cast<double>(document_length(msg)) / static_cast<double>(transactions);
  for (auto _ : state) std::free(tivex_toXML(msg.get()));
  report_each(state, transactions);
}

BENCHMARK_CAPTURE(add_only, credit_transfers, TIVEX_CREDIT_TRANSFER)->Apply(sizes);
BENCHMARK_CAPTURE(add_only, direct_debits, TIVEX_DIRECT_DEBIT)->Apply(sizes);
BENCHMARK_CAPTURE(add_and_write, credit_transfers, TIVEX_CREDIT_TRANSFER)->Apply(sizes);
BENCHMARK_CAPTURE(add_and_write, direct_debits, TIVEX_DIRECT_DEBIT)->Apply(sizes);
BENCHMARK_CAPTURE(write_only, credit_transfers, TIVEX_CREDIT_TRANSFER, 0)->Apply(sizes);
BENCHMARK_CAPTURE(write_only, direct_debits, TIVEX_DIRECT_DEBIT, 0)->Apply(sizes);
BENCHMARK_CAPTURE(write_only, strict_credit_transfers, TIVEX_CREDIT_TRANSFER, 1)->Apply(sizes);
BENCHMARK_CAPTURE(write_only, strict_direct_debits, TIVEX_DIRECT_DEBIT, 1)->Apply(sizes);

}  // namespace
