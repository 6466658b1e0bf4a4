#include "tivex.h"
#include "validation/format_check.h"
#include "validation/iban.h"

void tivex_cleanup(void) {
  tivex::iban_release_patterns();
  tivex::bic_release_pattern();
}
