#include "transactions/eea.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "validation/ascii.h"

namespace tivex {

namespace {

constexpr std::string_view non_eea_countries[] = {"AD", "BL", "CH", "MC", "SM", "GB", "GI", "GG",
                                                  "IM", "JE", "NC", "PF", "PM", "TF", "WF", "VA"};

}  // namespace

int bic_outside_eea(const char* bic) {
  if (std::strlen(bic) < 8) return -1;
  return country_outside_eea(bic + 4) ? 1 : 0;
}

bool country_outside_eea(const char* country) {
  const char first = to_upper(country[0]);
  const char second = to_upper(country[1]);
  return std::ranges::any_of(non_eea_countries, [=](std::string_view outside) {
    return first == outside[0] && second == outside[1];
  });
}

}  // namespace tivex
