#include <tivex.h>

int main(void) { return tivex_iban_check("DE89370400440532013000") == 1 ? 0 : 1; }
