#include "tivex.h"

const int tivex_version_int = TIVEX_VERSION_INT;
const char* tivex_version_str = TIVEX_VERSION_STR;
