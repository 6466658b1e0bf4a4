#include "payments/admitted_text.h"

#include <utility>

#include "files/transliteration.h"

namespace tivex_program {

rewriting write_with_admitted(std::string& value, std::string_view key,
                              admitted_characters& characters) {
  const auto may_stay = [&](std::string_view c) { return characters.admits(key, c); };
  if (first_refused(value, may_stay).empty()) return rewriting::kept;
  std::string written = transliterated(value, may_stay);
  if (written == value) return rewriting::kept;
  if (written.find_first_not_of(' ') == std::string::npos) return rewriting::nothing_left;
  value = std::move(written);
  return rewriting::changed;
}

}  // namespace tivex_program
