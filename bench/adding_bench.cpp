// A transaction added and released beside what no library can do without: a copy of
// each of its texts, wiped before it is freed.

#include <cstring>

#include "messages.h"

namespace {

constexpr tivex_keyvalue_t transfer[] = {{"iban", "NL91ABNA0417164300"},
                                         {"name", "Jutta Mertens"},
                                         {"amount", "2480.15"},
                                         {"date", "2026-11-30"},
                                         {"ref", "Invoice of November 2026"},
                                         {"id", "R-2026-4711"},
                                         {"addrTown", "Amsterdam"},
                                         {"addrCC", "NL"},
                                         {nullptr, nullptr}};

void add_eight_keys(benchmark::State& state) {
  const int transactions = static_cast<int>(state.range(0));
  for (auto _ : state) {
    const message_ptr msg = make_message(TIVEX_CREDIT_TRANSFER);
    for (int index = 0; index < transactions; ++index) {
      if (tivex_add(msg.get(), transfer) != 1) std::abort();
    }
  }
  report_each(state, transactions);
}

void release(std::vector<char*>& texts) {
  for (char* const text : texts) {
    explicit_bzero(text, std::strlen(text));
    std::free(text);
  }
  texts.clear();
}

void copy_texts(std::vector<char*>& texts) {
  for (const tivex_keyvalue_t* entry = transfer; entry->key != nullptr; ++entry) {
    texts.push_back(strdup(entry->value));
  }
}

// All copies held together before they are released, as a message holds them.
void copy_eight_texts(benchmark::State& state) {
  const int transactions = static_cast<int>(state.range(0));
  std::vector<char*> texts;
  for (auto _ : state) {
    for (int index = 0; index < transactions; ++index) copy_texts(texts);
    release(texts);
  }
  report_each(state, transactions);
}

// Each transaction's copies released at once: the allocator is never as fast again.
void copy_eight_texts_at_a_time(benchmark::State& state) {
  const int transactions = static_cast<int>(state.range(0));
  std::vector<char*> texts;
  for (auto _ : state) {
    for (int index = 0; index < transactions; ++index) {
      copy_texts(texts);
      release(texts);
    }
  }
  report_each(state, transactions);
}

BENCHMARK(add_eight_keys)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(copy_eight_texts)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(copy_eight_texts_at_a_time)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
