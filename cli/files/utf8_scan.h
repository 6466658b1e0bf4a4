#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tivex_program {

// Looks at a text that comes in parts, up to its first NUL byte.
class utf8_scan {
 public:
  void take(std::string_view part);

  // Whether all of it is UTF-8; asked when it has come to its end.
  bool is_utf8() const { return sound_ && open_.empty(); }
  bool has_nul() const { return has_nul_; }
  // Its length up to there.
  std::uint64_t length() const { return length_; }

 private:
  bool sound_ = true;
  bool has_nul_ = false;
  std::uint64_t length_ = 0;
  std::string open_;  // the bytes of a character whose end is still to come
};

}  // namespace tivex_program
