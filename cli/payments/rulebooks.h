#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "payments/message_handle.h"

namespace tivex_program {

// What banks work by now: the only rulebook with what is new, and with strict documents
// alone.
inline constexpr std::string_view newest_rulebooks[] = {"DE-26.11"};
inline constexpr std::string_view newest_rulebook = newest_rulebooks[0];
inline constexpr const char* default_rulebook = newest_rulebook.data();
// What the library selects by itself today.
inline constexpr std::string_view default_of_library = "DE-3.7";
// The rulebook that loses the parts of an address without town and country, and all whose
// addresses have parts.
inline constexpr std::string_view structured_rulebook = "DE-3.7";
inline constexpr std::string_view structured_rulebooks[] = {structured_rulebook, newest_rulebook};

// For texts only: the library decides which names it takes.
inline constexpr const char* known_rulebooks =
    "DE-2.6, DE-2.7, DE-2.8, DE-2.9, DE-3.0, DE-3.1, DE-3.5, DE-3.7, DE-26.11, AT-6, NL-6";

// Selects the rulebook for the whole process. Returns the reason why not, which
// lists the known names, or an empty text.
std::string select_rulebook(const std::string& name);

// Whose subset of the ISO schemas the documents meet; empty for none.
std::string subset_of(std::string_view rulebook);

// Whether the selected rulebook wants the BIC of the other side in each row.
bool rows_want_bic();
// A message with every header value that any document asks for.
message_handle sound_message(int type);

// What the library says of a rulebook when it is asked to set, add and write.
struct rulebook_facts {
  std::string name;
  std::string credit_transfer;  // the schemas' versions
  std::string direct_debit;
  std::vector<std::string> admitted;
};

// The facts of all known rulebooks.
std::vector<rulebook_facts> all_rulebooks();

}  // namespace tivex_program
