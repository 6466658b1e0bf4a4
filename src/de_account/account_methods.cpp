#include "de_account/account_methods.h"

#include "de_account/methods.h"

namespace tivex::check_digits {

namespace {

struct coded_method {
  unsigned char code;
  account_method* method;
};

constexpr coded_method coded_methods[] = {
    {0x00, method_00}, {0x01, method_01}, {0x02, method_02}, {0x03, method_03}, {0x04, method_04},
    {0x05, method_05}, {0x06, method_06}, {0x07, method_07}, {0x08, method_08}, {0x09, method_09},
    {0x10, method_10}, {0x11, method_11}, {0x13, method_13}, {0x14, method_14}, {0x15, method_15},
    {0x16, method_16}, {0x17, method_17}, {0x18, method_18}, {0x19, method_19}, {0x20, method_20},
    {0x21, method_21}, {0x22, method_22}, {0x23, method_23}, {0x24, method_24}, {0x25, method_25},
    {0x26, method_26}, {0x27, method_27}, {0x28, method_28}, {0x29, method_29}, {0x30, method_30},
    {0x31, method_31}, {0x32, method_32}, {0x33, method_33}, {0x34, method_34}, {0x38, method_38},
    {0x40, method_40}, {0x41, method_41}, {0x42, method_42}, {0x43, method_43}, {0x44, method_44},
    {0x45, method_45}, {0x46, method_46}, {0x47, method_47}, {0x48, method_48}, {0x49, method_49},
    {0x50, method_50}, {0x51, method_51}, {0x55, method_55}, {0x56, method_56}, {0x57, method_57},
    {0x58, method_58}, {0x59, method_59}, {0x60, method_60}, {0x61, method_61}, {0x63, method_63},
    {0x64, method_64}, {0x65, method_65}, {0x66, method_66}, {0x67, method_67}, {0x68, method_68},
    {0x71, method_71}, {0x73, method_73}, {0x74, method_74}, {0x75, method_75}, {0x76, method_76},
    {0x78, method_78}, {0x81, method_81}, {0x84, method_84}, {0x85, method_85}, {0x87, method_87},
    {0x88, method_88}, {0x90, method_90}, {0x91, method_91}, {0x92, method_92}, {0x93, method_93},
    {0x94, method_94}, {0x95, method_95}, {0x96, method_96}, {0x98, method_98}, {0x99, method_99},
    {0xA1, method_a1}, {0xA2, method_a2}, {0xA3, method_a3}, {0xA4, method_a4}, {0xA5, method_a5},
    {0xA6, method_a6}, {0xA7, method_a7}, {0xA8, method_a8}, {0xA9, method_a9}, {0xB1, method_b1},
    {0xB2, method_b2}, {0xB3, method_b3}, {0xB5, method_b5}, {0xB7, method_b7}, {0xB8, method_b8},
    {0xB9, method_b9}, {0xC1, method_c1}, {0xC2, method_c2}, {0xC3, method_c3}, {0xC4, method_c4},
    {0xC5, method_c5}, {0xC6, method_c6}, {0xC7, method_c7}, {0xC8, method_c8}, {0xC9, method_c9},
    {0xD0, method_d0}, {0xD1, method_d1}, {0xD2, method_d2}, {0xD3, method_d3}, {0xD4, method_d4},
    {0xD5, method_d5}, {0xD6, method_d6}, {0xD7, method_d7}, {0xD8, method_d8}, {0xD9, method_d9},
    {0xE0, method_e0}, {0xE1, method_e1}, {0xE2, method_e2}, {0xE3, method_e3}, {0xE4, method_e4}};

}  // namespace

constinit const std::array<account_method*, 256> account_methods = [] {
  std::array<account_method*, 256> by_code = {};
  for (const coded_method& row : coded_methods) by_code[row.code] = row.method;
  return by_code;
}();

}  // namespace tivex::check_digits
