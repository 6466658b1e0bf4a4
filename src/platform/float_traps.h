#pragma once

#ifdef __SSE2__
#include <xmmintrin.h>
#else
#include <cfenv>
#endif

namespace tivex::platform {

// C computes with infinity and what is not a number, but a host's language may let such
// sums trap, as Pascal does. As long as the object lives, the traps are off.
class float_traps_off {
 public:
  float_traps_off(const float_traps_off&) = delete;
  float_traps_off& operator=(const float_traps_off&) = delete;

#ifdef __SSE2__
  float_traps_off() : before_(_mm_getcsr()) {
    if ((~before_ & _MM_MASK_MASK) != 0) _mm_setcsr(before_ | _MM_MASK_MASK);
  }
  ~float_traps_off() {
    if ((~before_ & _MM_MASK_MASK) != 0) _mm_setcsr(before_);
  }

 private:
  unsigned before_;
#else
  float_traps_off() { std::feholdexcept(&before_); }
  ~float_traps_off() { std::fesetenv(&before_); }

 private:
  std::fenv_t before_{};
#endif
};

}  // namespace tivex::platform
