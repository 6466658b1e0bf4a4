#pragma once

#include <string>
#include <string_view>

#include "signals_held.h"

namespace tivex_program {

// Text in a file that its owner alone can read, in $TMPDIR or /tmp, for as long as the
// object lives.
class temporary_copy {
 public:
  explicit temporary_copy(std::string_view text);
  ~temporary_copy();
  temporary_copy(const temporary_copy&) = delete;
  temporary_copy& operator=(const temporary_copy&) = delete;

  const std::string& path() const { return path_; }
  // The reason why there is no whole copy, empty when there is one.
  const std::string& error() const { return error_; }

 private:
  signals_held held_;
  std::string path_;
  std::string error_;
  bool exists_ = false;
};

}  // namespace tivex_program
