// The methods with a logic of their own.

#include "de_account/transcribed_account.h"

namespace transcribed {

int method_11(const account& a) {
  const int r = a.total({0, 2, 3, 4, 5, 6, 7, 8, 9, 10}) % 11;
  int check_digit = 0;
  if (r != 0) check_digit = 11 - r;
  if (check_digit == 10) check_digit = 9;
  return valid_if(check_digit == a.d(10));
}

int method_16(const account& a) {
  const int r = a.total({0, 2, 3, 4, 5, 6, 7, 2, 3, 4}) % 11;
  if (r == 1 && a.c(9) == a.c(10)) return 1;
  return valid_if((r == 0 || r == 1 ? 0 : 11 - r) == a.d(10));
}

int method_17(const account& a) {
  const int t = cross_sum(2 * a.d(7)) + cross_sum(2 * a.d(5)) + cross_sum(2 * a.d(3)) + a.d(2) +
                a.d(4) + a.d(6) - 1;
  return valid_if((10 - t % 11) % 10 == a.d(8));
}

int method_21(const account& a) {
  int t = total_of_cross_sums(a, {0, 2, 1, 2, 1, 2, 1, 2, 1, 2});
  while (t >= 10) t = cross_sum(t);
  return valid_if(a.d(10) == 10 - t);
}

int method_22(const account& a) {
  const int w[] = {3, 1, 3, 1, 3, 1, 3, 1, 3};
  int t = 0;
  for (int n = 1; n <= 9; ++n) t += a.d(n) * w[9 - n] % 10;
  return valid_if((10 - t % 10) % 10 == a.d(10));
}

int method_23(const account& a) {
  const int t = 7 * a.d(1) + 6 * a.d(2) + 5 * a.d(3) + 4 * a.d(4) + 3 * a.d(5) + 2 * a.d(6);
  const int r = t % 11;
  if (r == 1) return valid_if(a.c(6) == a.c(7));
  if (r == 0) return valid_if(a.d(7) == 0);
  return valid_if(a.d(7) == 11 - r);
}

int method_24(const account& a) {
  int n = 1;
  if (a.c(1) >= '3' && a.c(1) <= '6') n = 2;
  if (a.c(1) == '9') n = 4;
  while (n <= 10 && a.c(n) == '0') ++n;
  if (n >= 10) return valid_if(a.c(10) == '0');
  int t = 0;
  for (int weight = 1; n <= 9; ++n, weight = weight % 3 + 1) t += (a.d(n) + 1) * weight % 11;
  return valid_if(t % 10 == a.d(10));
}

int method_25(const account& a) {
  const int check_digit = (11 - a.total({0, 2, 3, 4, 5, 6, 7, 8, 9, 0}) % 11) % 11;
  if (check_digit != 10) return valid_if(check_digit == a.d(10));
  return valid_if(a.c(10) == '0' && (a.c(2) == '8' || a.c(2) == '9'));
}

int method_29(const account& a) {
  const int transform_table[4][10] = {{0, 1, 5, 9, 3, 7, 4, 8, 2, 6},
                                      {0, 1, 7, 6, 9, 8, 3, 2, 5, 4},
                                      {0, 1, 8, 4, 6, 2, 9, 5, 7, 3},
                                      {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}};
  int t = 0;
  for (int k = 0; k <= 8; ++k) {
    if (a.d(9 - k) < 0 || a.d(9 - k) > 9) return -1;
    t += transform_table[k % 4][a.d(9 - k)];
  }
  return valid_if((10 - t % 10) % 10 == a.d(10));
}

int method_31(const account& a) {
  int t = 0;
  for (int n = 1; n <= 9; ++n) t += a.d(n) * n;
  const int r = t % 11;
  return r == 10 ? -1 : valid_if(r == a.d(10));
}

int method_56(const account& a) {
  const int t = a.total({0, 2, 3, 4, 5, 6, 7, 2, 3, 4});
  if (t % 11 == 0 || t % 11 == 1) return -1;
  return valid_if(11 - t % 11 == a.d(10));
}

int method_57(const account& a) {
  const int v = 10 * a.d(1) + a.d(2);
  if (v <= 0 || v > 99) return -1;
  const auto is_one_of = [v](std::initializer_list<int> values) {
    for (const int each : values) {
      if (v == each) return true;
    }
    return false;
  };
  if (is_one_of({51, 55, 61, 64, 65, 66, 70, 73, 74, 75, 76, 77, 78, 79, 80, 81, 82, 88, 94, 95})) {
    if (a.begins("777777") || a.begins("888888")) return 0;
    return xs(a, 10, 10, {0, 1, 2, 1, 2, 1, 2, 1, 2, 1});
  }
  if (is_one_of({32, 33, 34, 35, 36, 37, 38, 39, 41, 42, 43, 44, 45, 46, 47,
                 48, 49, 52, 53, 54, 56, 57, 58, 59, 60, 62, 63, 67, 68, 69,
                 71, 72, 83, 84, 85, 86, 87, 89, 90, 92, 93, 96, 97, 98})) {
    return xs(a, 10, 3, {1, 2, 1, 2, 1, 2, 1, 0, 2, 1});
  }
  if (is_one_of({40, 50, 91, 99})) return 0;
  if (a.begins("0185125434")) return 1;
  const int u = 10 * a.d(3) + a.d(4);
  if (u < 1 || u > 12) return -1;
  return valid_if(100 * a.d(7) + 10 * a.d(8) + a.d(9) < 500);
}

int method_66(const account& a) {
  if (a.c(1) != '0') return -1;
  if (a.c(2) == '9') return 0;
  const int t = 7 * a.d(2) + 6 * a.d(5) + 5 * a.d(6) + 4 * a.d(7) + 3 * a.d(8) + 2 * a.d(9);
  const int r = t % 11;
  if (r == 0) return valid_if(a.d(10) == 1);
  if (r == 1) return valid_if(a.d(10) == 0);
  return valid_if(a.d(10) == 11 - r);
}

int method_68(const account& a) {
  if (a.c(1) == '0') {
    if (a.c(2) == '4') return 0;
    if (a.begins("00000")) return -1;
    return chain({xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 2, 1, 0}),
                  xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 0, 0, 1, 0})});
  }
  return a.c(4) != '9' ? -1 : xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 0, 0, 0});
}

int method_71(const account& a) {
  const int t = 6 * a.d(2) + 5 * a.d(3) + 4 * a.d(4) + 3 * a.d(5) + 2 * a.d(6) + 1 * a.d(7);
  const int r = t % 11;
  return valid_if((r == 0 || r == 1 ? r : 11 - r) == a.d(10));
}

int method_74(const account& a) {
  if (method(a, 0x00) != -1) return method(a, 0x00);
  if (a.begins("0000") && a.c(5) != '0') {
    const int t =
        cross_sum(2 * a.d(9)) + a.d(8) + cross_sum(2 * a.d(7)) + a.d(6) + cross_sum(2 * a.d(5));
    if ((15 - t % 10) % 10 == a.d(10)) return 1;
  }
  return method(a, 0x04);
}

int method_76(const account& a) {
  const auto refused = [&a](int n) {
    return a.c(n) == '1' || a.c(n) == '2' || a.c(n) == '3' || a.c(n) == '5' ||
           a.begins("000", n + 1);
  };
  if (refused(1)) return -1;
  int t = 7 * a.d(2) + 6 * a.d(3) + 5 * a.d(4) + 4 * a.d(5) + 3 * a.d(6) + 2 * a.d(7);
  if (t % 11 == 10) return 0;
  if (t % 11 == a.d(8)) return 1;
  if (a.c(1) != '0' || a.c(2) != '0') return -1;
  if (refused(3)) return -1;
  t = 7 * a.d(4) + 6 * a.d(5) + 5 * a.d(6) + 4 * a.d(7) + 3 * a.d(8) + 2 * a.d(9);
  if (t % 11 == 10) return 0;
  return t % 11 == a.d(10) ? 2 : -1;
}

int exception_51(const account& a) {
  const int first = a.total({0, 2, 3, 4, 5, 6, 7, 8, 0, 0}) % 11;
  if ((first <= 1 ? 0 : 11 - first) == a.d(10)) return 1;
  const int second = a.total({0, 2, 3, 4, 5, 6, 7, 8, 9, 10}) % 11;
  return valid_if((second <= 1 ? 0 : 11 - second) == a.d(10));
}

int method_87_a(const account& account) {
  const int first_table[] = {0, 4, 3, 2, 6}, second_table[] = {7, 1, 5, 9, 8};
  int K[11] = {};
  for (int n = 1; n <= 10; ++n) K[n] = account.d(n);
  int i = 4;
  while (i <= 10 && K[i] == 0) ++i;
  int c2 = i % 2, d2 = 0, a = 0;
  for (; i <= 9; ++i) {
    switch (K[i]) {
      case 0:
        K[i] = 5;
        break;
      case 1:
        K[i] = 6;
        break;
      case 5:
        K[i] = 10;
        break;
      case 6:
        K[i] = 1;
        break;
    }
    const int k = K[i];
    if (c2 == d2) {
      if (k > 5) {
        if (c2 == 0 && d2 == 0) {
          c2 = 1, d2 = 1, a = a + 12 - k;
        } else {
          c2 = 0, d2 = 0, a = a + k;
        }
      } else {
        c2 = c2 == 0 && d2 == 0 ? 1 : 0;
        a = a + k;
      }
    } else {
      if (k > 5) {
        if (c2 == 0) {
          c2 = 1, d2 = 0, a = a + k - 12;
        } else {
          c2 = 0, d2 = 1, a = a - k;
        }
      } else {
        c2 = 1 - c2;
        a = a - k;
      }
    }
  }
  while (a < 0 || a > 4) a += a < 0 ? 5 : -5;
  int p = d2 == 1 ? second_table[a] : first_table[a];
  if (p == account.d(10)) return 1;
  if (K[4] == 0) {
    p = p > 4 ? p - 5 : p + 5;
    if (p == account.d(10)) return 1;
  }
  return -1;
}

int method_b9(const account& a) {
  if (!a.begins("00") || a.begins("00", 3)) return -1;
  int t = 0;
  if (a.c(3) != '0') {
    const int w[] = {1, 3, 2, 1, 3, 2, 1};
    for (int n = 3; n <= 9; ++n) t += (a.d(n) + 1) * w[9 - n] % 11;
  } else {
    t = (6 * a.d(4) + 5 * a.d(5) + 4 * a.d(6) + 3 * a.d(7) + 2 * a.d(8) + 1 * a.d(9)) % 11;
  }
  if (t % 10 == a.d(10)) return 1;
  return valid_if((t + 5) % 10 == a.d(10));
}

int method_c1(const account& a) {
  if (a.c(1) != '5') return method_17(a);
  const int t = a.d(1) + cross_sum(2 * a.d(2)) + a.d(3) + cross_sum(2 * a.d(4)) + a.d(5) +
                cross_sum(2 * a.d(6)) + a.d(7) + cross_sum(2 * a.d(8)) + a.d(9) - 1;
  return valid_if((10 - t % 11) % 10 == a.d(10));
}

int method_c5(const account& a) {
  if (a.value_in(100000, 899999) || a.value_in(100000000, 899999999)) return method(a, 0x75);
  if (a.value_in(1000000000, 1999999999) || a.value_in(4000000000, 6999999999) ||
      a.value_in(9000000000, 9999999999)) {
    return method_29(a);
  }
  if (a.value_in(3000000000, 3999999999)) return method(a, 0x00);
  if (a.value_in(30000000, 59999999) || a.value_in(7000000000, 7099999999) ||
      a.value_in(8500000000, 8599999999)) {
    return 0;
  }
  return -1;
}

int method_c7(const account& a) {
  if (method(a, 0x63) != -1) return method(a, 0x63);
  if (!a.begins("000")) return method(a, 0x06);
  account shifted = a;
  for (int n = 1; n <= 10; ++n) shifted.characters[n] = n <= 8 ? a.characters[n + 2] : '0';
  return chain({method(shifted, 0x63), method(a, 0x06)});
}

namespace {

// The prefix, then the account's positions from the one named up to 9.
int prefix_luhn(const account& a, const char* prefix, int from) {
  int sequence[15], length = 0, t = 0;
  for (; *prefix != 0; ++prefix) sequence[length++] = *prefix - '0';
  for (int n = from; n <= 9; ++n) sequence[length++] = a.d(n);
  for (int at = length - 1, weight = 2; at >= 0; --at, weight = 3 - weight) {
    t += cross_sum(sequence[at] * weight);
  }
  return valid_if((10 - t % 10) % 10 == a.d(10));
}

}  // namespace

int method_c6(const account& a) {
  const char* const prefixes[] = {"4451970", "4451981", "4451992", "4451993", "4344992",
                                  "4344990", "4344991", "5499570", "4451994", "5499579"};
  return a.d(1) < 0 || a.d(1) > 9 ? -1 : prefix_luhn(a, prefixes[a.d(1)], 2);
}

int method_d1(const account& a) {
  const char* const prefixes[] = {"4363380", "4363381", "4363382", "4363383", "4363384",
                                  "4363385", "4363386", "4363387", "",        "4363389"};
  return a.d(1) < 0 || a.d(1) > 9 || a.d(1) == 8 ? -1 : prefix_luhn(a, prefixes[a.d(1)], 2);
}

int method_d4(const account& a) { return a.c(1) == '0' ? -1 : prefix_luhn(a, "428259", 1); }

int method_d7(const account& a) {
  return valid_if(total_of_cross_sums(a, {0, 2, 1, 2, 1, 2, 1, 2, 1, 2}) % 10 == a.d(10));
}

int method_e0(const account& a) {
  const int t = total_of_cross_sums(a, {0, 2, 1, 2, 1, 2, 1, 2, 1, 2}) + 7;
  return valid_if((10 - t % 10) % 10 == a.d(10));
}

int method_e1(const account& a) {
  const int t = 9 * a.c(1) + 10 * a.c(2) + 11 * a.c(3) + 6 * a.c(4) + 5 * a.c(5) + 4 * a.c(6) +
                3 * a.c(7) + 2 * a.c(8) + 1 * a.c(9);
  const int r = t % 11;
  return r == 10 ? -1 : valid_if(r == a.d(10));
}

int method_e2(const account& a) {
  const char* const prefixes[] = {"4383200", "4383201", "4383202", "4383203", "4383204", "4383205"};
  return a.d(1) < 0 || a.d(1) > 5 ? -1 : prefix_luhn(a, prefixes[a.d(1)], 2);
}

}  // namespace transcribed
