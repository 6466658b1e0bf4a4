#include "tivex.h"

// Everything that the library keeps is constant, or one word: there is nothing to release.
void tivex_cleanup(void) {}
