// The rules of the check-digit methods once more, word for word and without regard
// to speed, to hold the library against. They follow the arithmetic as written for
// any bytes; where it is open, they do as the library does:
// - C6, D1 and E2: a first character that is no digit gives -1;
// - the transformation of methods 27 and 29: any character that is no digit gives -1;
// - 57: two first characters that make no number from 0 to 99 give -1;
// - 52: less than two significant digits give -1.

#pragma once

// bank_code: null stands for the call without a bank code.
int transcribed_check(const char* account, const char* bank_code, int method);
