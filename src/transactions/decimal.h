#pragma once

namespace tivex {

// The decimal number at the start of a text: white space, a sign, digits with at
// most one point among them, an exponent. `end` receives, unless it is null, the
// first byte behind the number, or the text's start where there is no digit (the
// value is then zero). A decimal exponent beyond 511 is taken as 511 and sets
// errno to ERANGE; nothing else sets it.
//
// The value is not always the nearest one that a double can hold: of the digits
// the first 18 count, and powers of ten are multiplied together, so that the
// same text gives the same amount on every platform.
double parse_decimal(const char* text, const char** end);

// The nearest whole number, halves upwards, those of negative numbers too.
double round_half_up(double x);

}  // namespace tivex
