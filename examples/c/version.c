/* Tells which library is loaded, and refuses one that is older than the header. */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

int main(void) {
  printf("tivex %s, edition %s\n", tivex_version_str, tivex_edition_str);
  if (tivex_version_int < TIVEX_VERSION_INT) return EXIT_FAILURE;
  /* For the whole process, before messages are made. */
  if (!tivex_init(TIVEX_OPTION_RULEBOOK, "DE-3.7")) return EXIT_FAILURE;
  tivex_cleanup();
  return EXIT_SUCCESS;
}
