#include "de_account/transcribed_methods.h"

#include <algorithm>
#include <string>

#include "de_account/transcribed_account.h"

namespace transcribed {

int method(const account& a, int code) {
  switch (code) {
    // clang-format off
    case 0x00: return xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 2, 1, 2});
    case 0x01: return m10(a, 10, {0, 3, 7, 1, 3, 7, 1, 3, 7, 1});
    case 0x02: return m11(a, 10, {0, 2, 3, 4, 5, 6, 7, 8, 9, 2});
    case 0x03: return m10(a, 10, {0, 2, 1, 2, 1, 2, 1, 2, 1, 2});
    case 0x04: return m11(a, 10, {0, 2, 3, 4, 5, 6, 7, 2, 3, 4});
    case 0x05: return m10(a, 10, {0, 7, 3, 1, 7, 3, 1, 7, 3, 1});
    case 0x06: return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 2, 3, 4});
    case 0x07: return m11(a, 10, {0, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    case 0x08: return a.value_in(0, 59999) ? 0 : method(a, 0x00);
    case 0x09: return 0;
    case 0x10: return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    case 0x11: return method_11(a);
    case 0x13:
      if (xs(a, 10, 8, {0, 0, 0, 2, 1, 2, 1, 2, 1, 0}) == 1) return 1;
      return a.begins("00") ? xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 0, 0, 0}) : -1;
    case 0x14: return m11(a, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0});
    case 0x15: return mod(a, 11, 10, {0, 2, 3, 4, 5, 0, 0, 0, 0, 0});
    case 0x16: return method_16(a);
    case 0x17: return method_17(a);
    case 0x18: return m10(a, 10, {0, 3, 9, 7, 1, 3, 9, 7, 1, 3});
    case 0x19: return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 8, 9, 1});
    case 0x20: return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 8, 9, 3});
    case 0x21: return method_21(a);
    case 0x22: return method_22(a);
    case 0x23: return method_23(a);
    case 0x24: return method_24(a);
    case 0x25: return method_25(a);
    case 0x26:
      return a.begins("00") ? mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 2, 0, 0})
                            : mod(a, 11, 8, {0, 0, 0, 2, 3, 4, 5, 6, 7, 2});
    case 0x27: return a.c(1) != '0' ? method_29(a) : method(a, 0x00);
    case 0x28: return mod(a, 11, 8, {0, 0, 0, 2, 3, 4, 5, 6, 7, 8});
    case 0x29: return method_29(a);
    case 0x30: return m10(a, 10, {0, 2, 1, 2, 1, 0, 0, 0, 0, 2});
    case 0x31: return method_31(a);
    case 0x32: return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0});
    case 0x33: return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0});
    case 0x34: return mod(a, 11, 8, {0, 0, 0, 2, 4, 8, 5, 10, 9, 7});
    case 0x38: return mod(a, 11, 10, {0, 2, 4, 8, 5, 10, 9, 0, 0, 0});
    case 0x40: return mod(a, 11, 10, {0, 2, 4, 8, 5, 10, 9, 7, 3, 6});
    case 0x41:
      return a.c(4) == '9' ? xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 0, 0, 0})
                           : xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 2, 1, 2});
    case 0x42: return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 8, 9, 0});
    case 0x43: return mod(a, 10, 10, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    case 0x44: return mod(a, 11, 10, {0, 2, 4, 8, 5, 10, 0, 0, 0, 0});
    case 0x45:
      return a.c(1) == '0' || a.c(5) == '1' || a.begins("48") ? 0 : method(a, 0x00);
    case 0x46: return mod(a, 11, 8, {0, 0, 0, 2, 3, 4, 5, 6, 0, 0});
    case 0x47: return mod(a, 11, 9, {0, 0, 2, 3, 4, 5, 6, 0, 0, 0});
    case 0x48: return mod(a, 11, 9, {0, 0, 2, 3, 4, 5, 6, 7, 0, 0});
    case 0x49: return chain({method(a, 0x00), method(a, 0x01)});
    case 0x50:
      if (mod(a, 11, 7, {0, 0, 0, 0, 2, 3, 4, 5, 6, 7}) == 1) return 1;
      return a.begins("000") ? mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0}) : -1;
    case 0x51:
      if (a.c(3) == '9') return exception_51(a);
      return chain({mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0}),
                    mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0}),
                    xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 0, 0, 0}),
                    mod(a, 7, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0})});
    case 0x55: return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 8, 7, 8});
    case 0x56: return method_56(a);
    case 0x57: return method_57(a);
    case 0x58: return m11(a, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0});
    case 0x59: return a.begins("00") ? 0 : method(a, 0x00);
    case 0x60: return xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 2, 0, 0});
    case 0x61:
      return a.c(9) == '8' ? xs(a, 10, 8, {2, 1, 0, 2, 1, 2, 1, 2, 1, 2})
                           : xs(a, 10, 8, {0, 0, 0, 2, 1, 2, 1, 2, 1, 2});
    case 0x63:
      if (a.c(1) != '0') return -1;
      if (xs(a, 10, 8, {0, 0, 0, 2, 1, 2, 1, 2, 1, 0}) == 1) return 1;
      return a.begins("000") ? xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 0, 0, 0}) : -1;
    case 0x64: return mod(a, 11, 7, {0, 0, 0, 0, 2, 4, 8, 5, 10, 9});
    case 0x65:
      return a.c(9) == '9' ? xs(a, 10, 8, {2, 1, 0, 2, 1, 2, 1, 2, 1, 2})
                           : xs(a, 10, 8, {0, 0, 0, 2, 1, 2, 1, 2, 1, 2});
    case 0x66: return method_66(a);
    case 0x67: return xs(a, 10, 8, {0, 0, 0, 2, 1, 2, 1, 2, 1, 2});
    case 0x68: return method_68(a);
    case 0x71: return method_71(a);
    case 0x73:
      if (a.c(3) == '9') return exception_51(a);
      return chain({xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 0, 0, 0}),
                    xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 0, 0, 0, 0}),
                    xs(a, 7, 10, {0, 2, 1, 2, 1, 2, 0, 0, 0, 0})});
    case 0x74: return method_74(a);
    case 0x75:
      if (a.c(1) != '0') return -1;
      if (a.begins("00", 2)) return xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 0, 0, 0, 0});
      return a.c(2) == '9' ? xs(a, 10, 8, {0, 0, 0, 2, 1, 2, 1, 2, 0, 0})
                           : xs(a, 10, 7, {0, 0, 0, 0, 2, 1, 2, 1, 2, 0});
    case 0x76: return method_76(a);
    case 0x78: return a.begins("00") && a.c(3) != '0' ? 0 : method(a, 0x00);
    case 0x81: return a.c(3) == '9' ? exception_51(a) : method(a, 0x32);
    case 0x84:
      if (a.c(3) == '9') return exception_51(a);
      return chain({mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0}),
                    mod(a, 7, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0}),
                    mod(a, 10, 10, {0, 2, 1, 2, 1, 2, 0, 0, 0, 0})});
    case 0x85:
      if (a.begins("99", 3)) return m11(a, 10, {0, 2, 3, 4, 5, 6, 7, 8, 0, 0});
      return chain({mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0}), method(a, 0x33),
                    a.c(10) > '6' ? -1 : mod(a, 7, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0})});
    case 0x87:
      if (a.c(3) == '9') return exception_51(a);
      return chain({method_87_a(a), method(a, 0x33), mod(a, 7, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0}),
                    mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0})});
    case 0x88:
      return a.c(3) == '9' ? mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 8, 0, 0})
                           : mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0});
    case 0x90:
      if (a.c(3) == '9') return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 8, 0, 0});
      return chain({mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0}),
                    mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0}),
                    mod(a, 7, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0}),
                    mod(a, 9, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0}),
                    mod(a, 10, 10, {0, 2, 1, 2, 1, 2, 0, 0, 0, 0}),
                    mod(a, 7, 10, {0, 2, 1, 2, 1, 2, 1, 0, 0, 0})});
    case 0x91:
      return chain({mod(a, 11, 7, {0, 0, 0, 0, 2, 3, 4, 5, 6, 7}),
                    mod(a, 11, 7, {0, 0, 0, 0, 7, 6, 5, 4, 3, 2}),
                    mod(a, 11, 7, {2, 3, 4, 0, 5, 6, 7, 8, 9, 10}),
                    mod(a, 11, 7, {0, 0, 0, 0, 2, 4, 8, 5, 10, 9})});
    case 0x92: return m10(a, 10, {0, 3, 7, 1, 3, 7, 1, 0, 0, 0});
    case 0x93:
      if (!a.begins("0000")) {
        return chain({mod(a, 11, 6, {0, 0, 0, 0, 0, 2, 3, 4, 5, 6}),
                      mod(a, 7, 6, {0, 0, 0, 0, 0, 2, 3, 4, 5, 6})});
      }
      return chain({mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0}),
                    mod(a, 7, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0})});
    case 0x94: return xs(a, 10, 10, {0, 1, 2, 1, 2, 1, 2, 1, 2, 1});
    case 0x95:
      if (a.value_in(1, 1999999) || a.value_in(9000000, 25999999) ||
          a.value_in(396000000, 499999999) || a.value_in(700000000, 799999999) ||
          a.value_in(910000000, 989999999)) {
        return 1;
      }
      return method(a, 0x06);
    case 0x96:
      return chain({method(a, 0x19), method(a, 0x00), a.value_in(1300000, 99399999) ? 0 : -1});
    case 0x98: return chain({m10(a, 10, {0, 3, 1, 7, 3, 1, 7, 3, 0, 0}), method(a, 0x32)});
    case 0x99: return a.value_in(396000000, 499999999) ? 0 : method(a, 0x06);
    case 0xA1:
      if (a.c(1) == '0' && (a.c(2) != '0' || a.c(3) == '0')) return -1;
      return xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 2, 0, 0});
    case 0xA2: return chain({method(a, 0x00), method(a, 0x04)});
    case 0xA3: return chain({method(a, 0x00), method(a, 0x10)});
    case 0xA4:
      if (a.begins("99", 3)) {
        return chain({mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 0, 0, 0, 0}), method(a, 0x93)});
      }
      return chain({mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0}),
                    mod(a, 7, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0}), method(a, 0x93)});
    case 0xA5: return chain({method(a, 0x00), a.c(1) == '9' ? -1 : method(a, 0x10)});
    case 0xA6: return a.c(2) == '8' ? method(a, 0x00) : method(a, 0x01);
    case 0xA7: return chain({method(a, 0x00), method(a, 0x03)});
    case 0xA8:
      if (a.c(3) == '9') return exception_51(a);
      return chain({mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0}),
                    xs(a, 10, 10, {0, 2, 1, 2, 1, 2, 1, 0, 0, 0})});
    case 0xA9: return chain({method(a, 0x01), method(a, 0x06)});
    case 0xB1: return chain({method(a, 0x05), method(a, 0x01), method(a, 0x00)});
    case 0xB2: return a.c(1) >= '8' ? method(a, 0x00) : method(a, 0x02);
    case 0xB3: return a.c(1) >= '9' ? method(a, 0x06) : method(a, 0x32);
    case 0xB5: return chain({method(a, 0x05), a.c(1) > '7' ? -1 : method(a, 0x00)});
    case 0xB7:
      return a.value_in(1000000, 5999999) || a.value_in(700000000, 899999999) ? method(a, 0x01)
                                                                              : 0;
    case 0xB8: {
      const bool unchecked = (a.c(1) == '5' && a.c(2) >= '1') ||
                             (a.c(1) == '9' && a.c(2) == '0' && a.c(3) >= '1') || a.begins("910");
      return chain({method(a, 0x20), method(a, 0x29), unchecked ? 0 : -1});
    }
    case 0xB9: return method_b9(a);
    case 0xC1: return method_c1(a);
    case 0xC2: return chain({method(a, 0x22), method(a, 0x00), method(a, 0x04)});
    case 0xC3: return a.c(1) == '9' ? method(a, 0x58) : method(a, 0x00);
    case 0xC4: return a.c(1) == '9' ? method(a, 0x58) : method(a, 0x15);
    case 0xC5: return method_c5(a);
    case 0xC6: return method_c6(a);
    case 0xC7: return method_c7(a);
    case 0xC8: return chain({method(a, 0x00), method(a, 0x04), method(a, 0x07)});
    case 0xC9: return chain({method(a, 0x00), method(a, 0x07)});
    case 0xD0: return a.begins("57") ? 0 : method(a, 0x20);
    case 0xD1: return method_d1(a);
    case 0xD2: return chain({method(a, 0x95), method(a, 0x00), method(a, 0x68)});
    case 0xD3: return chain({method(a, 0x00), method(a, 0x27)});
    case 0xD4: return method_d4(a);
    case 0xD5:
      if (a.begins("99", 3)) return mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 8, 0, 0});
      return chain({mod(a, 11, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0}),
                    mod(a, 7, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0}),
                    mod(a, 10, 10, {0, 2, 3, 4, 5, 6, 7, 0, 0, 0})});
    case 0xD6: return chain({method(a, 0x07), method(a, 0x03), method(a, 0x00)});
    case 0xD7: return method_d7(a);
    case 0xD8:
      if (a.c(1) != '0') return method(a, 0x00);
      return a.c(2) != '0' || a.c(3) == '0' ? -1 : 0;
    case 0xD9: return chain({method(a, 0x00), method(a, 0x10), method(a, 0x18)});
    case 0xE0: return method_e0(a);
    case 0xE1: return method_e1(a);
    case 0xE2: return method_e2(a);
    case 0xE3: return chain({method(a, 0x00), method(a, 0x21)});
    case 0xE4: return chain({method(a, 0x02), method(a, 0x00)});
    default: return 0;
      // clang-format on
  }
}

namespace {

// Positions count from 1, here as in the rules.
struct bank_code {
  const char* text;
  char b(int n) const { return text[n - 1]; }
};

int legacy_check(const std::string& legacy) {
  const int legacy_weights[] = {2, 4, 8, 5, 10, 9, 7, 3, 6, 1, 2, 4};
  const int length = static_cast<int>(legacy.size());
  int t = 0, expected = 0;
  for (int place = 1; place <= length; ++place) {
    const int digit = static_cast<unsigned char>(legacy[static_cast<unsigned>(place - 1)]) - '0';
    if (place == 6) {
      expected = digit;
    } else {
      t += digit * legacy_weights[length - place];
    }
  }
  const int r = t % 11, w = legacy_weights[length - 6];
  for (int v = 0; v <= 9; ++v) {
    if ((r + v * w) % 11 == 10) return valid_if(v == expected);
  }
  return -1;
}

int after_zeros(const account& a, int n) {
  while (n <= 10 && a.c(n) == '0') ++n;
  return n;
}

std::string part(const account& a, int from) {
  std::string text;
  for (int n = from; n <= 10; ++n) text += static_cast<char>(a.c(n));
  return text;
}

int method_52(const account& a, const bank_code& bank) {
  if (a.c(1) == '9') return method(a, 0x20);
  const int first = after_zeros(a, 1);
  if (first > 9) return -1;
  const std::string tail = part(a, after_zeros(a, first + 2));
  if (tail.size() > 6) return -1;
  std::string legacy = {bank.b(5), bank.b(6), bank.b(7), bank.b(8)};
  legacy += static_cast<char>(a.c(first));
  legacy += static_cast<char>(a.c(first + 1));
  return legacy_check(legacy + tail);
}

int method_53(const account& a, const bank_code& bank) {
  if (a.c(1) == '9') return method(a, 0x20);
  const auto c = [&a](int n) { return static_cast<char>(a.c(n)); };
  const std::string legacy = {bank.b(5), bank.b(6), c(3), bank.b(8), c(2), c(4)};
  return legacy_check(legacy + part(a, after_zeros(a, 5)));
}

int method_b6(const account& a, const bank_code& bank) {
  if (a.c(1) > '0' || (a.begins("0269") && a.c(5) > '0')) return method(a, 0x20);
  return method_53(a, bank);
}

int method_c0(const account& a, const bank_code& bank) {
  if (a.begins("00") && a.c(3) != '0') return chain({method_52(a, bank), method(a, 0x20)});
  return method(a, 0x20);
}

}  // namespace
}  // namespace transcribed

int transcribed_check(const char* account, const char* bank_code, int method) {
  if (account == nullptr || *account == 0 || std::strlen(account) > 10) return -1;
  transcribed::account a;
  std::fill_n(a.characters, 11, '0');
  std::memcpy(a.characters + 11 - std::strlen(account), account, std::strlen(account));
  if (bank_code != nullptr) {
    if (std::strlen(bank_code) != 8) return -1;
    const transcribed::bank_code bank = {bank_code};
    switch (method & 0xFF) {
      case 0x52:
        return transcribed::method_52(a, bank);
      case 0x53:
        return transcribed::method_53(a, bank);
      case 0xB6:
        return transcribed::method_b6(a, bank);
      case 0xC0:
        return transcribed::method_c0(a, bank);
    }
  }
  return transcribed::method(a, method & 0xFF);
}
