#pragma once

namespace tivex {

// Whether a BIC belongs to a SEPA country or territory outside the European
// Economic Area: 1 yes, 0 no, -1 when it is shorter than 8 bytes. Nothing but
// its country code is looked at.
int bic_outside_eea(const char* bic);

// The same of the two letters of a country, with which an IBAN begins.
bool country_outside_eea(const char* country);

}  // namespace tivex
