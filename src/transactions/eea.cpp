#include "transactions/eea.h"

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
  for (const std::string_view country : non_eea_countries) {
    if (to_upper(bic[4]) == country[0] && to_upper(bic[5]) == country[1]) return 1;
  }
  return 0;
}

}  // namespace tivex
