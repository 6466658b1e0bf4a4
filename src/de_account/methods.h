// The check-digit methods of the Deutsche Bundesbank's list, in the order of their
// codes. A row is the whole method; one with a rule of its own is declared here
// and defined in special_methods.cpp, or in the file that its line names.
#pragma once

#include "de_account/method_notation.h"

namespace tivex::check_digits {

// Used by the rows.
account_method check_transformed;
account_method exception_51;
account_method method_63_shifted;
account_method method_74_six_digits;
account_method method_87_a;  // method_87_a.cpp
account_method method_c1_five;
account_method prefixed_luhn_d1;  // prefixed_luhn.cpp
account_method prefixed_luhn_d4;  // prefixed_luhn.cpp
account_method prefixed_luhn_e2;  // prefixed_luhn.cpp

inline constexpr account_method& method_00 = XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 2, 1, 2>;
inline constexpr account_method& method_01 = M10<10, 0, 3, 7, 1, 3, 7, 1, 3, 7, 1>;
inline constexpr account_method& method_02 = M11<10, 0, 2, 3, 4, 5, 6, 7, 8, 9, 2>;
inline constexpr account_method& method_03 = M10<10, 0, 2, 1, 2, 1, 2, 1, 2, 1, 2>;
inline constexpr account_method& method_04 = M11<10, 0, 2, 3, 4, 5, 6, 7, 2, 3, 4>;
inline constexpr account_method& method_05 = M10<10, 0, 7, 3, 1, 7, 3, 1, 7, 3, 1>;
inline constexpr account_method& method_06 = MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 2, 3, 4>;
inline constexpr account_method& method_07 = M11<10, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10>;
inline constexpr account_method& method_08 = choose<below<60000>, unchecked, method_00>;
inline constexpr account_method& method_09 = unchecked;
inline constexpr account_method& method_10 = MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10>;
account_method method_11;
inline constexpr account_method& method_13 =
    first_of<XS<10, 8, 0, 0, 0, 2, 1, 2, 1, 2, 1, 0>,
             choose<at<1, "00">, XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 0, 0, 0>, reject>>;
inline constexpr account_method& method_14 = M11<10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>;
inline constexpr account_method& method_15 = MOD<11, 10, 0, 2, 3, 4, 5, 0, 0, 0, 0, 0>;
account_method method_16;
account_method method_17;
inline constexpr account_method& method_18 = M10<10, 0, 3, 9, 7, 1, 3, 9, 7, 1, 3>;
inline constexpr account_method& method_19 = MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 8, 9, 1>;
inline constexpr account_method& method_20 = MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 8, 9, 3>;
account_method method_21;
account_method method_22;
account_method method_23;
account_method method_24;
account_method method_25;
inline constexpr account_method& method_26 =
    choose<at<1, "00">, MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 2, 0, 0>,
           MOD<11, 8, 0, 0, 0, 2, 3, 4, 5, 6, 7, 2>>;
inline constexpr account_method& method_27 = choose<at<1, "0">, method_00, check_transformed>;
inline constexpr account_method& method_28 = MOD<11, 8, 0, 0, 0, 2, 3, 4, 5, 6, 7, 8>;
inline constexpr account_method& method_29 = check_transformed;
inline constexpr account_method& method_30 = M10<10, 0, 2, 1, 2, 1, 0, 0, 0, 0, 2>;
account_method method_31;
inline constexpr account_method& method_32 = MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>;
inline constexpr account_method& method_33 = MOD<11, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>;
inline constexpr account_method& method_34 = MOD<11, 8, 0, 0, 0, 2, 4, 8, 5, 10, 9, 7>;
inline constexpr account_method& method_38 = MOD<11, 10, 0, 2, 4, 8, 5, 10, 9, 0, 0, 0>;
inline constexpr account_method& method_40 = MOD<11, 10, 0, 2, 4, 8, 5, 10, 9, 7, 3, 6>;
inline constexpr account_method& method_41 =
    choose<at<4, "9">, XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 0, 0, 0>,
           XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 2, 1, 2>>;
inline constexpr account_method& method_42 = MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 8, 9, 0>;
inline constexpr account_method& method_43 = MOD<10, 10, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9>;
inline constexpr account_method& method_44 = MOD<11, 10, 0, 2, 4, 8, 5, 10, 0, 0, 0, 0>;
inline constexpr account_method& method_45 =
    choose<any_of<at<1, "0">, at<5, "1">, at<1, "48">>, unchecked, method_00>;
inline constexpr account_method& method_46 = MOD<11, 8, 0, 0, 0, 2, 3, 4, 5, 6, 0, 0>;
inline constexpr account_method& method_47 = MOD<11, 9, 0, 0, 2, 3, 4, 5, 6, 0, 0, 0>;
inline constexpr account_method& method_48 = MOD<11, 9, 0, 0, 2, 3, 4, 5, 6, 7, 0, 0>;
inline constexpr account_method& method_49 = first_of<method_00, method_01>;
inline constexpr account_method& method_50 =
    first_of<MOD<11, 7, 0, 0, 0, 0, 2, 3, 4, 5, 6, 7>,
             choose<at<1, "000">, MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>, reject>>;
inline constexpr account_method& method_51 = choose<
    at<3, "9">, exception_51,
    first_of<MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>, MOD<11, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>,
             XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 0, 0, 0>, MOD<7, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>>>;
inline constexpr account_method& method_55 = MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 8, 7, 8>;
account_method method_56;
account_method method_57;  // method_57.cpp
inline constexpr account_method& method_58 = M11<10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>;
inline constexpr account_method& method_59 = choose<at<1, "00">, unchecked, method_00>;
inline constexpr account_method& method_60 = XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 2, 0, 0>;
inline constexpr account_method& method_61 =
    choose<at<9, "8">, XS<10, 8, 2, 1, 0, 2, 1, 2, 1, 2, 1, 2>,
           XS<10, 8, 0, 0, 0, 2, 1, 2, 1, 2, 1, 2>>;
inline constexpr account_method& method_63 =
    choose<at<1, "0">,
           first_of<XS<10, 8, 0, 0, 0, 2, 1, 2, 1, 2, 1, 0>,
                    choose<at<1, "000">, XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 0, 0, 0>, reject>>,
           reject>;
inline constexpr account_method& method_64 = MOD<11, 7, 0, 0, 0, 0, 2, 4, 8, 5, 10, 9>;
inline constexpr account_method& method_65 =
    choose<at<9, "9">, XS<10, 8, 2, 1, 0, 2, 1, 2, 1, 2, 1, 2>,
           XS<10, 8, 0, 0, 0, 2, 1, 2, 1, 2, 1, 2>>;
account_method method_66;
inline constexpr account_method& method_67 = XS<10, 8, 0, 0, 0, 2, 1, 2, 1, 2, 1, 2>;
inline constexpr account_method& method_68 =
    choose<at<1, "0">,
           choose<at<2, "4">, unchecked,
                  choose<at<1, "00000">, reject,
                         first_of<XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 2, 1, 0>,
                                  XS<10, 10, 0, 2, 1, 2, 1, 2, 0, 0, 1, 0>>>>,
           choose<at<4, "9">, XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 0, 0, 0>, reject>>;
account_method method_71;
inline constexpr account_method& method_73 = choose<
    at<3, "9">, exception_51,
    first_of<XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 0, 0, 0>, XS<10, 10, 0, 2, 1, 2, 1, 2, 0, 0, 0, 0>,
             XS<7, 10, 0, 2, 1, 2, 1, 2, 0, 0, 0, 0>>>;
inline constexpr account_method& method_74 = first_of<method_00, method_74_six_digits, method_04>;
inline constexpr account_method& method_75 =
    choose<at<1, "0">,
           choose<at<2, "00">, XS<10, 10, 0, 2, 1, 2, 1, 2, 0, 0, 0, 0>,
                  choose<at<2, "9">, XS<10, 8, 0, 0, 0, 2, 1, 2, 1, 2, 0, 0>,
                         XS<10, 7, 0, 0, 0, 0, 2, 1, 2, 1, 2, 0>>>,
           reject>;
account_method method_76;
inline constexpr account_method& method_78 =
    choose<all_of<at<1, "00">, is_not<at<3, "0">>>, unchecked, method_00>;
inline constexpr account_method& method_81 = choose<at<3, "9">, exception_51, method_32>;
inline constexpr account_method& method_84 = choose<
    at<3, "9">, exception_51,
    first_of<MOD<11, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>, MOD<7, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>,
             MOD<10, 10, 0, 2, 1, 2, 1, 2, 0, 0, 0, 0>>>;
inline constexpr account_method& method_85 =
    choose<at<3, "99">, M11<10, 0, 2, 3, 4, 5, 6, 7, 8, 0, 0>,
           first_of<MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>, method_33,
                    choose<from<10, '7'>, reject, MOD<7, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>>>>;
inline constexpr account_method& method_87 =
    choose<at<3, "9">, exception_51,
           first_of<method_87_a, method_33, MOD<7, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>,
                    MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>>>;
inline constexpr account_method& method_88 =
    choose<at<3, "9">, MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 8, 0, 0>,
           MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>>;
inline constexpr account_method& method_90 = choose<
    at<3, "9">, MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 8, 0, 0>,
    first_of<MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>, MOD<11, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>,
             MOD<7, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>, MOD<9, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>,
             MOD<10, 10, 0, 2, 1, 2, 1, 2, 0, 0, 0, 0>, MOD<7, 10, 0, 2, 1, 2, 1, 2, 1, 0, 0, 0>>>;
inline constexpr account_method& method_91 =
    first_of<MOD<11, 7, 0, 0, 0, 0, 2, 3, 4, 5, 6, 7>, MOD<11, 7, 0, 0, 0, 0, 7, 6, 5, 4, 3, 2>,
             MOD<11, 7, 2, 3, 4, 0, 5, 6, 7, 8, 9, 10>, MOD<11, 7, 0, 0, 0, 0, 2, 4, 8, 5, 10, 9>>;
inline constexpr account_method& method_92 = M10<10, 0, 3, 7, 1, 3, 7, 1, 0, 0, 0>;
inline constexpr account_method& method_93 = choose<
    at<1, "0000">,
    first_of<MOD<11, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>, MOD<7, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>>,
    first_of<MOD<11, 6, 0, 0, 0, 0, 0, 2, 3, 4, 5, 6>, MOD<7, 6, 0, 0, 0, 0, 0, 2, 3, 4, 5, 6>>>;
inline constexpr account_method& method_94 = XS<10, 10, 0, 1, 2, 1, 2, 1, 2, 1, 2, 1>;
inline constexpr account_method& method_95 =
    choose<any_of<in<1, 1999999>, in<9000000, 25999999>, in<396000000, 499999999>,
                  in<700000000, 799999999>, in<910000000, 989999999>>,
           accept, method_06>;
inline constexpr account_method& method_96 =
    first_of<method_19, method_00, choose<in<1300000, 99399999>, unchecked, reject>>;
inline constexpr account_method& method_98 =
    first_of<M10<10, 0, 3, 1, 7, 3, 1, 7, 3, 0, 0>, method_32>;
inline constexpr account_method& method_99 = choose<in<396000000, 499999999>, unchecked, method_06>;
inline constexpr account_method& method_a1 =
    choose<all_of<at<1, "0">, any_of<is_not<at<2, "0">>, at<3, "0">>>, reject,
           XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 2, 0, 0>>;
inline constexpr account_method& method_a2 = first_of<method_00, method_04>;
inline constexpr account_method& method_a3 = first_of<method_00, method_10>;
inline constexpr account_method& method_a4 =
    choose<at<3, "99">, first_of<MOD<11, 10, 0, 2, 3, 4, 5, 6, 0, 0, 0, 0>, method_93>,
           first_of<MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>,
                    MOD<7, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>, method_93>>;
inline constexpr account_method& method_a5 =
    first_of<method_00, choose<at<1, "9">, reject, method_10>>;
inline constexpr account_method& method_a6 = choose<at<2, "8">, method_00, method_01>;
inline constexpr account_method& method_a7 = first_of<method_00, method_03>;
inline constexpr account_method& method_a8 = choose<
    at<3, "9">, exception_51,
    first_of<MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>, XS<10, 10, 0, 2, 1, 2, 1, 2, 1, 0, 0, 0>>>;
inline constexpr account_method& method_a9 = first_of<method_01, method_06>;
inline constexpr account_method& method_b1 = first_of<method_05, method_01, method_00>;
inline constexpr account_method& method_b2 = choose<from<1, '8'>, method_00, method_02>;
inline constexpr account_method& method_b3 = choose<from<1, '9'>, method_06, method_32>;
inline constexpr account_method& method_b5 =
    first_of<method_05, choose<from<1, '8'>, reject, method_00>>;
inline constexpr account_method& method_b7 =
    choose<any_of<in<1000000, 5999999>, in<700000000, 899999999>>, method_01, unchecked>;
inline constexpr account_method& method_b8 =
    first_of<method_20, method_29,
             choose<any_of<all_of<at<1, "5">, from<2, '1'>>, all_of<at<1, "90">, from<3, '1'>>,
                           at<1, "910">>,
                    unchecked, reject>>;
account_method method_b9;
inline constexpr account_method& method_c1 = choose<at<1, "5">, method_c1_five, method_17>;
inline constexpr account_method& method_c2 = first_of<method_22, method_00, method_04>;
inline constexpr account_method& method_c3 = choose<at<1, "9">, method_58, method_00>;
inline constexpr account_method& method_c4 = choose<at<1, "9">, method_58, method_15>;
inline constexpr account_method& method_c5 =
    choose<any_of<in<100000, 899999>, in<100000000, 899999999>>, method_75,
           choose<any_of<in<1000000000, 1999999999>, in<4000000000, 6999999999>,
                         in<9000000000, 9999999999>>,
                  method_29,
                  choose<in<3000000000, 3999999999>, method_00,
                         choose<any_of<in<30000000, 59999999>, in<7000000000, 7099999999>,
                                       in<8500000000, 8599999999>>,
                                unchecked, reject>>>>;
account_method method_c6;  // prefixed_luhn.cpp
inline constexpr account_method& method_c7 =
    first_of<method_63, choose<at<1, "000">, method_63_shifted, reject>, method_06>;
inline constexpr account_method& method_c8 = first_of<method_00, method_04, method_07>;
inline constexpr account_method& method_c9 = first_of<method_00, method_07>;
inline constexpr account_method& method_d0 = choose<at<1, "57">, unchecked, method_20>;
inline constexpr account_method& method_d1 = choose<at<1, "8">, reject, prefixed_luhn_d1>;
inline constexpr account_method& method_d2 = first_of<method_95, method_00, method_68>;
inline constexpr account_method& method_d3 = first_of<method_00, method_27>;
inline constexpr account_method& method_d4 = choose<at<1, "0">, reject, prefixed_luhn_d4>;
inline constexpr account_method& method_d5 = choose<
    at<3, "99">, MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 8, 0, 0>,
    first_of<MOD<11, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>, MOD<7, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>,
             MOD<10, 10, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0>>>;
inline constexpr account_method& method_d6 = first_of<method_07, method_03, method_00>;
account_method method_d7;
inline constexpr account_method& method_d8 =
    choose<at<1, "0">, choose<all_of<at<2, "0">, is_not<at<3, "0">>>, unchecked, reject>,
           method_00>;
inline constexpr account_method& method_d9 = first_of<method_00, method_10, method_18>;
account_method method_e0;
account_method method_e1;
inline constexpr account_method& method_e2 =
    choose<any_of<at<1, "6">, at<1, "7">, at<1, "8">, at<1, "9">>, reject, prefixed_luhn_e2>;
inline constexpr account_method& method_e3 = first_of<method_00, method_21>;
inline constexpr account_method& method_e4 = first_of<method_02, method_00>;

}  // namespace tivex::check_digits
