// POSIX extended regular expressions that are compiled at their first use.
#pragma once

#include <regex.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdlib>

namespace tivex {

// A set of patterns that is compiled as one, matched by any number of threads at
// once, and compiled again after it has been released. Threads that meet in the
// first use each compile a set; the one that comes first keeps its own.
template <std::size_t count>
class pattern_set {
 public:
  constexpr explicit pattern_set(const std::array<const char*, count>& patterns)
      : patterns_(patterns) {}

  bool ready() const { return compiled_.load(std::memory_order_acquire) != nullptr; }

  // Compiles every pattern in order; false at the first failure, which leaves
  // nothing behind.
  bool compile();

  // Whether the whole text has the form of a pattern of a set that is ready.
  bool matches(std::size_t index, const char* text) const {
    const regex_t* const compiled = compiled_.load(std::memory_order_acquire);
    return regexec(&compiled[index], text, 0, nullptr, 0) == 0;
  }

  // No other thread may be using the set.
  void release() { discard(compiled_.exchange(nullptr), count); }

 private:
  static void discard(regex_t* compiled, std::size_t compiled_count) {
    if (compiled == nullptr) return;
    for (std::size_t index = 0; index < compiled_count; ++index) regfree(&compiled[index]);
    std::free(compiled);
  }

  std::array<const char*, count> patterns_;
  std::atomic<regex_t*> compiled_ = nullptr;
};

template <std::size_t count>
bool pattern_set<count>::compile() {
  auto* const compiled = static_cast<regex_t*>(std::calloc(count, sizeof(regex_t)));
  if (compiled == nullptr) return false;
  for (std::size_t index = 0; index < count; ++index) {
    if (regcomp(&compiled[index], patterns_[index], REG_EXTENDED) != 0) {
      discard(compiled, index);
      return false;
    }
  }
  regex_t* none = nullptr;
  if (!compiled_.compare_exchange_strong(none, compiled)) discard(compiled, count);
  return true;
}

}  // namespace tivex
