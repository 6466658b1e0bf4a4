#include "xml/purposes.h"

#include <algorithm>
#include <string_view>

#include "xml/data/purposes_at_004.h"

namespace tivex {

namespace {

constexpr std::string_view text_of(const purpose_code& row) { return row.code; }

static_assert(std::ranges::is_sorted(purposes_at_004, {}, text_of), "they are found by halves");

}  // namespace

bool is_listed_purpose(const char* code) {
  return std::ranges::binary_search(purposes_at_004, std::string_view(code), {}, text_of);
}

}  // namespace tivex
