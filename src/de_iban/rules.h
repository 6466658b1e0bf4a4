// The IBAN rules of the Deutsche Bundesbank's list, by their numbers. A line is the
// whole rule; what has more to say is a function in bank_rules.cpp or
// arithmetic_rules.cpp.
#pragma once

#include <array>

#include "de_iban/data/account_maps.h"
#include "de_iban/rule_notation.h"

namespace tivex::iban_rules {

// bank_rules.cpp
rule_step replace_prefix_1116;
rule_step drop_zero_at_4;
rule_step shift_eight_digits;
rule_step rotate_nine_at_5;
iban_rule rule_10;
iban_rule rule_41;
iban_rule rule_43;
iban_rule rule_52;
iban_rule rule_53;
iban_rule rule_54;
iban_rule rule_56;
iban_rule rule_57;

iban_rule rule_05;  // rule_05.cpp
iban_rule rule_20;  // rule_20.cpp

// arithmetic_rules.cpp
iban_rule rule_31;
iban_rule rule_32;
iban_rule rule_33;
iban_rule rule_34;
iban_rule rule_35;
iban_rule rule_36;
iban_rule rule_42;

inline constexpr account_replacement account_map_11[] = {{"0000001000", "0008010001"},
                                                         {"0000047800", "0000047803"}};
inline constexpr account_row accounts_26[] = {{"0000055111"}, {"0008090100"}};
inline constexpr account_row accounts_27[] = {{"0000003333"}, {"0000004444"}};

using check_digits::all_of;
using check_digits::any_of;
using check_digits::at;
using check_digits::is_not;

inline constexpr std::array<iban_rule*, 58> iban_rule_table = {
    /* 0 */ iban_build_standard,
    /* 1 */ always_declined<STATUS_BANK_REFUSES>,
    /* 2 */ declined_if<any_of<at<8, "6">, at<8, "86">>>,
    /* 3 */ declined_if<at<1, "6161604670">>,
    /* 4 */ standard_after<map_account<account_map_4, check_again>>,
    /* 5 */ rule_05,
    /* 6 */ standard_after<map_account<account_map_6, check_again>>,
    /* 7 */ standard_after<map_account<account_map_7, check_again>>,
    /* 8 */ standard_after<bank_code_becomes<"50020200">>,
    /* 9 */ standard_after<bank_code_becomes<"68351557">, replace_prefix_1116>,
    /* 10 */ rule_10,
    /* 11 */ standard_after<map_account<account_map_11, count_as_valid>>,
    /* 12 */ standard_after<bank_code_becomes<"50050000">>,
    /* 13 */ standard_after<bank_code_becomes<"30050000">>,
    /* 14 */ standard_after<bank_code_becomes<"30060601">>,
    /* 15 */ standard_after<map_account<account_map_15, check_again>>,
    /* 16 */ standard_after<map_account<account_map_16, check_again>>,
    /* 17 */ standard_after<map_account<account_map_17, check_again>>,
    /* 18 */ standard_after<map_account<account_map_18, check_again>>,
    /* 19 */ standard_after<bank_code_becomes<"50120383">>,
    /* 20 */ rule_20,
    /* 21 */
    declined_if<any_of<all_of<at<1, "00">, is_not<at<3, "0">>>, at<1, "00000">>,
                bank_code_becomes<"36020030">>,
    /* 22 */ standard_after<map_account<account_map_22, check_again>>,
    /* 23 */ standard_after<map_account<account_map_23, check_again>>,
    /* 24 */ standard_after<map_account<account_map_24, check_again>>,
    /* 25 */ standard_after<bank_code_becomes<"60050101">>,
    /* 26 */ standard_after<accept_accounts<accounts_26>>,
    /* 27 */ standard_after<accept_accounts<accounts_27>>,
    /* 28 */ standard_after<bank_code_becomes<"25050180">>,
    /* 29 */ standard_after<drop_zero_at_4>,
    /* 30 */ standard_after<accept_accounts<accounts_30>>,
    /* 31 */ rule_31,
    /* 32 */ rule_32,
    /* 33 */ rule_33,
    /* 34 */ rule_34,
    /* 35 */ rule_35,
    /* 36 */ rule_36,
    /* 37 */ standard_after<bank_code_becomes<"30010700">>,
    /* 38 */ standard_after<bank_code_becomes<"28590075">>,
    /* 39 */ standard_after<bank_code_becomes<"28020050">>,
    /* 40 */ standard_after<bank_code_becomes<"68052328">>,
    /* 41 */ rule_41,
    /* 42 */ rule_42,
    /* 43 */ rule_43,
    /* 44 */ standard_after<map_account<account_map_44, check_again_yes_or_no>>,
    /* 45 */ iban_build_standard,
    /* 46 */ standard_after<bank_code_becomes<"31010833">>,
    /* 47 */ standard_after<shift_eight_digits>,
    /* 48 */ standard_after<bank_code_becomes<"36010200">>,
    /* 49 */ standard_after<map_account<account_map_49, check_again_yes_or_no>, rotate_nine_at_5>,
    /* 50 */ standard_after<bank_code_becomes<"28550000">>,
    /* 51 */ standard_after<map_account<account_map_51, check_again_yes_or_no>>,
    /* 52 */ rule_52,
    /* 53 */ rule_53,
    /* 54 */ rule_54,
    /* 55 */ standard_after<bank_code_becomes<"25410200">>,
    /* 56 */ rule_56,
    /* 57 */ rule_57,
};

}  // namespace tivex::iban_rules
