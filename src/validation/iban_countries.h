// The countries whose IBANs the library knows.
#pragma once

#include <array>
#include <cstdint>

namespace tivex {

struct iban_country {
  const char* code;
  const char* name;
  std::uint8_t length;
  const char* pattern;  // POSIX extended, anchored at both ends
};

inline constexpr std::array<iban_country, 37> iban_country_table = {{
    {"AT", "Austria", 20, "^AT[0-9]{18}$"},
    {"BE", "Belgium", 16, "^BE[0-9]{14}$"},
    {"BG", "Bulgaria", 22, "^BG[0-9]{2}[A-Z]{4}[0-9]{6}[A-Z0-9]{8}$"},
    {"HR", "Croatia", 21, "^HR[0-9]{19}$"},
    {"CY", "Cyprus", 28, "^CY[0-9]{10}[A-Z0-9]{16}$"},
    {"CZ", "Czech Republic", 24, "^CZ[0-9]{22}$"},
    {"DK", "Denmark", 18, "^DK[0-9]{16}$"},
    {"FO", "Denmark", 18, "^FO[0-9]{16}$"},
    {"GL", "Denmark", 18, "^GL[0-9]{16}$"},
    {"EE", "Estonia", 20, "^EE[0-9]{18}$"},
    {"FI", "Finland", 18, "^FI[0-9]{16}$"},
    {"FR", "France", 27, "^FR[0-9]{12}[A-Z0-9]{11}[0-9]{2}$"},
    {"DE", "Germany", 22, "^DE[0-9]{20}$"},
    {"GI", "Gibraltar", 23, "^GI[0-9]{2}[A-Z]{4}[A-Z0-9]{15}$"},
    {"GR", "Greece", 27, "^GR[0-9]{9}[A-Z0-9]{16}$"},
    {"HU", "Hungary", 28, "^HU[0-9]{26}$"},
    {"IS", "Iceland", 26, "^IS[0-9]{24}$"},
    {"IE", "Ireland", 22, "^IE[0-9]{2}[A-Z]{4}[0-9]{14}$"},
    {"IT", "Italy", 27, "^IT[0-9]{2}[A-Z]{1}[0-9]{10}[A-Z0-9]{12}$"},
    {"LV", "Latvia", 21, "^LV[0-9]{2}[A-Z]{4}[A-Z0-9]{13}$"},
    {"LI", "Liechtenstein", 21, "^LI[0-9]{7}[A-Z0-9]{12}$"},
    {"LT", "Lithuania", 20, "^LT[0-9]{18}$"},
    {"LU", "Luxembourg", 20, "^LU[0-9]{5}[A-Z0-9]{13}$"},
    {"MT", "Malta", 31, "^MT[0-9]{2}[A-Z]{4}[0-9]{5}[A-Z0-9]{18}$"},
    {"MC", "Monaco", 27, "^MC[0-9]{12}[A-Z0-9]{11}[0-9]{2}$"},
    {"NL", "The Netherlands", 18, "^NL[0-9]{2}[A-Z]{4}[0-9]{10}$"},
    {"NO", "Norway", 15, "^NO[0-9]{13}$"},
    {"PL", "Poland", 28, "^PL[0-9]{26}$"},
    {"PT", "Portugal", 25, "^PT[0-9]{23}$"},
    {"RO", "Romania", 24, "^RO[0-9]{2}[A-Z]{4}[A-Z0-9]{16}$"},
    {"SM", "San Marino", 27, "^SM[0-9]{2}[A-Z]{1}[0-9]{10}[A-Z0-9]{12}$"},
    {"SK", "Slovak Republic", 24, "^SK[0-9]{22}$"},
    {"SI", "Slovenia", 19, "^SI[0-9]{17}$"},
    {"ES", "Spain", 24, "^ES[0-9]{22}$"},
    {"SE", "Sweden", 24, "^SE[0-9]{22}$"},
    {"CH", "Switzerland", 21, "^CH[0-9]{7}[A-Z0-9]{12}$"},
    {"GB", "United Kingdom", 22, "^GB[0-9]{2}[A-Z]{4}[0-9]{14}$"},
}};

}  // namespace tivex
