// An account as the rules of the check-digit methods speak of it. Nothing here is
// shared with the library.

#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <initializer_list>

namespace transcribed {

// From position 10 leftwards, as the rules list them.
using weights = std::array<int, 10>;

struct account {
  // Positions 1 to 10, for any byte.
  unsigned char characters[11];

  int c(int n) const { return characters[n]; }
  int d(int n) const { return characters[n] - '0'; }

  bool begins(const char* text, int from = 1) const {
    return std::memcmp(characters + from, text, std::strlen(text)) == 0;
  }
  // Unsigned 64-bit arithmetic also for characters that are no digits.
  bool value_in(std::uint64_t first, std::uint64_t last) const {
    std::uint64_t value = 0;
    for (int n = 1; n <= 10; ++n) value = value * 10 + static_cast<std::uint64_t>(d(n));
    return value >= first && value <= last;
  }
  int total(const weights& w) const {
    int t = 0;
    for (int n = 1; n <= 10; ++n) t += d(n) * w[static_cast<unsigned>(10 - n)];
    return t;
  }
};

inline int cross_sum(int v) { return v < 10 ? v : v / 10 + v % 10; }

inline int total_of_cross_sums(const account& a, const weights& w) {
  int t = 0;
  for (int n = 1; n <= 10; ++n) t += cross_sum(a.d(n) * w[static_cast<unsigned>(10 - n)]);
  return t;
}

inline int valid_if(bool holds) { return holds ? 1 : -1; }

inline int xs(const account& a, int m, int p, const weights& w) {
  int r = total_of_cross_sums(a, w) % m;
  if (r > 0) r = m - r;
  return valid_if(r % 10 == a.d(p));
}

inline int m10(const account& a, int p, const weights& w) {
  return valid_if((10 - a.total(w) % 10) % 10 == a.d(p));
}

inline int m11(const account& a, int p, const weights& w) {
  const int r = a.total(w) % 11;
  if (r == 0) return valid_if(a.d(p) == 0);
  if (r == 1) return -1;
  return valid_if(11 - r == a.d(p));
}

inline int mod(const account& a, int m, int p, const weights& w) {
  const int r = a.total(w) % m;
  return valid_if((r == 0 ? 0 : (m - r) % 10) == a.d(p));
}

// The first result that is not -1, or else the last.
inline int chain(std::initializer_list<int> results) {
  int result = -1;
  for (const int each : results) {
    result = each;
    if (result != -1) break;
  }
  return result;
}

int method(const account& a, int code);

int method_11(const account& a);
int method_16(const account& a);
int method_17(const account& a);
int method_21(const account& a);
int method_22(const account& a);
int method_23(const account& a);
int method_24(const account& a);
int method_25(const account& a);
int method_29(const account& a);
int method_31(const account& a);
int method_56(const account& a);
int method_57(const account& a);
int method_66(const account& a);
int method_68(const account& a);
int method_71(const account& a);
int method_74(const account& a);
int method_76(const account& a);
int exception_51(const account& a);
int method_87_a(const account& a);
int method_b9(const account& a);
int method_c1(const account& a);
int method_c5(const account& a);
int method_c6(const account& a);
int method_c7(const account& a);
int method_d1(const account& a);
int method_d4(const account& a);
int method_d7(const account& a);
int method_e0(const account& a);
int method_e1(const account& a);
int method_e2(const account& a);

}  // namespace transcribed
