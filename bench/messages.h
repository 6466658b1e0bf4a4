// Messages of many transactions, for the benchmarks.
#pragma once

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "tivex.h"

struct message_free {
  void operator()(tivex_t* msg) const { tivex_free(msg); }
};
using message_ptr = std::unique_ptr<tivex_t, message_free>;

inline std::vector<std::string> make_dates(int count) {
  std::vector<std::string> dates;
  for (int index = 0; index < count; ++index) {
    char date[16];
    std::snprintf(date, sizeof date, "%04d-%02d-%02d", 2000 + index / 336 % 1000,
                  index / 28 % 12 + 1, index % 28 + 1);
    dates.emplace_back(date);
  }
  return dates;
}

// A message of a type, ready for transactions under the newest rulebook.
inline message_ptr make_message(int type) {
  tivex_init(TIVEX_OPTION_RULEBOOK, "DE-3.7");
  message_ptr msg(tivex_new(type));
  tivex_setIBAN(msg.get(), "NL91ABNA0417164300");
  tivex_setBIC(msg.get(), "ABNANL2A");
  tivex_setName(msg.get(), "Nordlicht");
  tivex_setCreditorIdentifier(msg.get(), "DE98ZZZ09999999999");
  return msg;
}

// A message with so many transactions; dates come in no order.
inline message_ptr fill(int type, int transactions, const std::vector<std::string>& dates) {
  message_ptr msg = make_message(type);
  constexpr const char* sequences[] = {"FRST", "RCUR", "OOFF", "FNAL"};
  for (int index = 0; index < transactions; ++index) {
    const std::size_t date = static_cast<std::size_t>(index) * 7919 % dates.size();
    const bool debit = type == TIVEX_DIRECT_DEBIT;
    const tivex_keyvalue_t list[] = {{"iban", "NL91ABNA0417164300"},
                                     {"name", "Jutta Mertens"},
                                     {"amount", "2480.15"},
                                     {"date", dates[date].c_str()},
                                     {"ref", "Invoice of November 2026"},
                                     {"addrTown", "Amsterdam"},
                                     {"addrCC", "NL"},
                                     {debit ? "seq" : nullptr, sequences[index % 4]},
                                     {"mref", "M-2026-4711"},
                                     {"mdate", "2026-01-31"},
                                     {nullptr, nullptr}};
    if (tivex_add(msg.get(), list) != 1) std::abort();
  }
  return msg;
}

// The length of the document that a message becomes.
inline std::size_t document_length(const message_ptr& msg) {
  char* const document = tivex_toXML(msg.get());
  const std::size_t length = std::strlen(document);
  std::free(document);
  return length;
}

inline std::size_t bytes_in_use() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

// The time for each transaction.
inline void report_each(benchmark::State& state, int transactions) {
  state.counters["per_transaction"] = benchmark::Counter(
      transactions, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// Numbers of transactions and dates, for what must not grow with them.
inline void sizes(benchmark::internal::Benchmark* bench) {
  bench->ArgNames({"transactions", "dates"});
  bench->Args({1000, 10})->Args({10000, 100})->Args({100000, 1000})->Args({500000, 1000});
  bench->Unit(benchmark::kMillisecond);
}
