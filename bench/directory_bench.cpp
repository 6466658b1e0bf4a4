// Time of a lookup, beside a hash table over the same keys. Both get C texts, as a
// host has them.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include "tivex.h"

namespace {

struct record {
  std::string bic, name, postcode, city;
};

// The first column of the rows of a file of the edition, in random order.
std::vector<std::string> keys_of(const char* file) {
  std::ifstream lines(std::string(TIVEX_EDITION "/") + file);
  std::vector<std::string> keys;
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with('#')) keys.push_back(line.substr(0, line.find('\t')));
  }
  keys.erase(keys.begin());  // the columns' names
  std::shuffle(keys.begin(), keys.end(), std::mt19937(1));
  return keys;
}

std::unordered_map<std::string, record> hash_table(const std::vector<std::string>& banks,
                                                   const std::vector<std::string>& bics) {
  std::unordered_map<std::string, record> table;
  const auto put = [&table](const std::string& key) {
    table[key] = {key, "The name of an institution", "12345", "A city's name"};
  };
  for (const std::string& key : banks) put("DE" + key);
  for (const std::string& key : bics) put(key);
  return table;
}

// Runs one lookup after the other; reports nanoseconds for each.
template <class lookup>
void look_up_all(benchmark::State& state, const std::vector<std::string>& keys,
                 const lookup& look_up) {
  std::size_t next = 0;
  for (auto _ : state) {
    if (!look_up(keys[next])) state.SkipWithError("a key is not found");
    if (++next == keys.size()) next = 0;
  }
}

const std::vector<std::string> banks = keys_of("german_banks.tsv");
const std::vector<std::string> bics = keys_of("bics.tsv");
const std::unordered_map<std::string, record> table = hash_table(banks, bics);

void bank_code(benchmark::State& state) {
  look_up_all(state, banks, [](const std::string& key) {
    return tivex_bankid_check("DE", key.c_str(), nullptr) == 1;
  });
}
BENCHMARK(bank_code);

void bank_code_in_hash_table(benchmark::State& state) {
  look_up_all(state, banks, [](const std::string& key) {
    const auto found = table.find(std::string("DE") + key.c_str());
    benchmark::DoNotOptimize(found->second.name.data());
    return found != table.end();
  });
}
BENCHMARK(bank_code_in_hash_table);

void bic(benchmark::State& state) {
  look_up_all(state, bics,
              [](const std::string& key) { return tivex_bic_getBank(key.c_str(), nullptr) == 1; });
}
BENCHMARK(bic);

void bic_in_hash_table(benchmark::State& state) {
  look_up_all(state, bics, [](const std::string& key) {
    const auto found = table.find(key.c_str());
    benchmark::DoNotOptimize(found->second.name.data());
    return found != table.end();
  });
}
BENCHMARK(bic_in_hash_table);

// With the block that the host gets.
void bank_code_with_block(benchmark::State& state) {
  look_up_all(state, banks, [](const std::string& key) {
    tivex_bank_info_t* info = nullptr;
    const bool found = tivex_bankid_check("DE", key.c_str(), &info) == 1;
    std::free(info);
    return found;
  });
}
BENCHMARK(bank_code_with_block);

}  // namespace
