#include "payments/rulebooks.h"

#include <tivex.h>

namespace tivex_program {

std::string select_rulebook(const std::string& name) {
  if (tivex_init(TIVEX_OPTION_RULEBOOK, name.c_str()) == 1) return {};
  return "unknown rulebook '" + name + "' (known: " + known_rulebooks + ")";
}

}  // namespace tivex_program
