#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tivex_program {

// A line on a terminal that tells how far reading has come. It appears when
// reading lasts, and is gone afterwards; without a terminal nothing is shown.
class progress_line {
 public:
  explicit progress_line(std::optional<std::uint64_t> total_bytes, bool wanted = true);
  ~progress_line();
  progress_line(const progress_line&) = delete;
  progress_line& operator=(const progress_line&) = delete;

  void show(std::uint64_t rows, std::uint64_t bytes);

 private:
  using clock = std::chrono::steady_clock;

  std::optional<std::uint64_t> total_bytes_;
  bool shown_;
  clock::time_point due_;
  std::size_t width_ = 0;
};

}  // namespace tivex_program
