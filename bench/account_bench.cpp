// Time of a check of a German account number: the mean over the methods, and the slowest.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tivex.h"

#ifdef TIVEX_BENCH_KTOBLZCHECK
#include <ktoblzcheck.h>
#endif

namespace {

struct account_case {
  int method;
  std::string method_name;
  std::string account;
  std::string bank_code;
};

using account_cases = std::vector<account_case>;

constexpr int method_codes = 256;
constexpr int accounts_per_method = 32;

int check(const account_case& subject) {
  return tivex_account_check2(subject.account.c_str(), subject.bank_code.c_str(), subject.method);
}

std::string name_of(int method) {
  char name[3];
  std::snprintf(name, sizeof name, "%02X", static_cast<unsigned>(method) & 0xFF);
  return name;
}

// Ten characters with zeros on the left, as an IBAN has them.
std::string random_digits(std::mt19937_64& random, std::size_t width, std::uint64_t bound) {
  const std::string digits = std::to_string(random() % bound);
  return std::string(width - digits.size(), '0') + digits;
}

account_case random_case(std::mt19937_64& random, int method) {
  constexpr std::uint64_t bounds[] = {10'000'000, 100'000'000, 1'000'000'000, 10'000'000'000};
  return {method, name_of(method), random_digits(random, 10, bounds[random() % 4]),
          random_digits(random, 8, 100'000'000)};
}

// Empty when the method has no function: then nothing is ever checked.
account_cases cases_of(int method) {
  std::mt19937_64 random(static_cast<unsigned>(method) + 1);
  account_cases cases;
  bool has_function = method == 0x09;  // it has one that checks nothing
  while (cases.size() < accounts_per_method) {
    account_case drawn = random_case(random, method);
    // Every second account passes, as most of a host's do.
    while (cases.size() % 2 == 0 && check(drawn) == TIVEX_ACCOUNT_INVALID) {
      drawn = random_case(random, method);
    }
    has_function = has_function || check(drawn) != TIVEX_ACCOUNT_NOT_CHECKED;
    cases.push_back(std::move(drawn));
  }
  return has_function ? cases : account_cases();
}

account_cases cases_of_all_methods() {
  account_cases all;
  for (int method = 0; method < method_codes; ++method) {
    const account_cases cases = cases_of(method);
    all.insert(all.end(), cases.begin(), cases.end());
  }
  return all;
}

account_cases in_random_order(account_cases cases) {
  std::shuffle(cases.begin(), cases.end(), std::mt19937(1));
  return cases;
}

double method_count(const account_cases& cases) {
  return static_cast<double>(cases.size()) / accounts_per_method;
}

// Runs one check after the other; reports nanoseconds for each.
template <class checker>
void check_all(benchmark::State& state, const account_cases& cases, const checker& check_one) {
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(check_one(cases[next]));
    if (++next == cases.size()) next = 0;
  }
}

const account_cases all_cases = cases_of_all_methods();
const account_cases mixed_cases = in_random_order(all_cases);

void account_check(benchmark::State& state, const account_cases& cases) {
  check_all(state, cases, check);
  state.counters["methods"] = method_count(cases);
}
// In random order, as a host's accounts come, the processor foresees fewer of the branches.
BENCHMARK_CAPTURE(account_check, method_by_method, all_cases);
BENCHMARK_CAPTURE(account_check, methods_mixed, mixed_cases);

// The least time of several rounds, which interruptions of the process do not lengthen.
std::chrono::nanoseconds time_of(const account_cases& cases) {
  constexpr int rounds = 200;
  auto least = std::chrono::nanoseconds::max();
  for (int round = 0; round < rounds; ++round) {
    const auto start = std::chrono::steady_clock::now();
    for (const account_case& subject : cases) benchmark::DoNotOptimize(check(subject));
    least = std::min<std::chrono::nanoseconds>(least, std::chrono::steady_clock::now() - start);
  }
  return least;
}

account_cases cases_of_slowest_method() {
  account_cases slowest;
  std::chrono::nanoseconds most = {};
  for (int method = 0; method < method_codes; ++method) {
    account_cases cases = cases_of(method);
    const std::chrono::nanoseconds time = time_of(cases);
    if (cases.empty() || time <= most) continue;
    most = time;
    slowest = std::move(cases);
  }
  return slowest;
}

void account_check_of_slowest_method(benchmark::State& state) {
  static const account_cases cases = cases_of_slowest_method();
  check_all(state, cases, check);
  state.SetLabel("method " + cases.front().method_name);
}
BENCHMARK(account_check_of_slowest_method);

#ifdef TIVEX_BENCH_KTOBLZCHECK

// It gets its own strings ready made. Methods that it does not know are left out,
// because it writes a line for each such call.
account_cases cases_known_to(const AccountNumberCheck& other) {
  account_cases known;
  std::array<int, method_codes> answers;
  answers.fill(-1);
  for (const account_case& subject : all_cases) {
    int& answer = answers[static_cast<std::size_t>(subject.method)];
    if (answer < 0) answer = other.check(subject.bank_code, subject.account, subject.method_name);
    if (answer != AccountNumberCheck::UNKNOWN) known.push_back(subject);
  }
  return known;
}

void account_check_by_ktoblzcheck(benchmark::State& state, bool mixed) {
  static const AccountNumberCheck other;
  static const account_cases known = cases_known_to(other);
  static const account_cases known_mixed = in_random_order(known);
  check_all(state, mixed ? known_mixed : known, [](const account_case& subject) {
    return other.check(subject.bank_code, subject.account, subject.method_name);
  });
  state.counters["methods"] = method_count(known);
}
BENCHMARK_CAPTURE(account_check_by_ktoblzcheck, method_by_method, false);
BENCHMARK_CAPTURE(account_check_by_ktoblzcheck, methods_mixed, true);

#endif

}  // namespace
