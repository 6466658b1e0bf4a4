// The selected rulebook and what each rulebook asks for.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>

namespace tivex {

// The numbers are not in the order of the versions.
enum rulebook_number : std::int32_t {
  RULEBOOK_NONE = -1,
  RULEBOOK_DE_2_6 = 0,
  RULEBOOK_DE_2_7 = 1,
  RULEBOOK_AT_6 = 2,
  RULEBOOK_NL_6 = 3,
  RULEBOOK_DE_2_8 = 4,
  RULEBOOK_DE_2_9 = 5,
  RULEBOOK_DE_3_0 = 6,
  RULEBOOK_DE_3_1 = 7,
  RULEBOOK_DE_3_5 = 8,
  RULEBOOK_DE_3_7 = 9,
  RULEBOOK_DE_26_11 = 10,
};

// What may be set and added; what is written is told by the document's schema.
struct rulebook_rules {
  const char* name;
  bool bic_required;                // of every transaction
  bool plain_text_only;             // no umlauts and no & * $ % anywhere
  bool wide_punctuation;            // the euro sign and 16 more characters everywhere
  bool cor1_allowed;                // as the local instrument of direct debits
  bool blank_in_mandate_reference;  // admitted
  bool address_line_outside_eea;    // needed for debtors whose bank is there
  bool structured_address;          // keys of its parts in place of address lines
  bool hybrid_address;              // address lines beside the parts
  bool bank_by_iban;                // where there is no BIC, also to tell what lies outside
  bool further_keys;                // those of key_rules.h, and instant payments
};

// In the order of the numbers.
inline constexpr std::array<rulebook_rules, 11> rulebook_table = {{
    // name    BIC    plain  wide   COR1   blank  EEA    parts  hybrid IBAN   further
    {"DE-2.6", true, true, false, false, false, false, false, false, false, false},
    {"DE-2.7", false, false, false, true, false, false, false, false, false, false},
    {"AT-6", false, false, true, true, false, false, false, false, false, false},
    {"NL-6", false, false, false, true, false, false, false, false, false, false},
    {"DE-2.8", false, false, false, true, false, false, false, false, false, false},
    {"DE-2.9", false, false, false, true, false, false, false, false, false, false},
    {"DE-3.0", false, false, false, false, true, false, false, false, false, false},
    {"DE-3.1", false, false, false, false, true, true, false, false, false, false},
    {"DE-3.5", false, false, false, false, true, true, false, false, false, false},
    {"DE-3.7", false, false, false, false, true, false, true, false, false, false},
    {"DE-26.11", false, false, false, false, true, false, true, true, true, true},
}};

// Process-wide; a host selects before it starts threads.
extern std::atomic<std::int32_t> rulebook;

// What the selected rulebook asks for; nothing in particular while none is
// selected.
const rulebook_rules& current_rules();

// Selects a rulebook by today's local date unless one is selected already.
void select_default_rulebook();

}  // namespace tivex
