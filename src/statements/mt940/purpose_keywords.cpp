#include "statements/mt940/purpose_keywords.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace tivex {

namespace {

// The most frequent ones stand in front.
constexpr keyword_row keywords[] = {
    {&tivex_stmt_tx_t::eref, "EREF+"},       {&tivex_stmt_tx_t::svwz, "SVWZ+"},
    {&tivex_stmt_tx_t::mref, "MREF+"},       {&tivex_stmt_tx_t::cred, "CRED+"},
    {&tivex_stmt_tx_t::kref, "KREF+"},       {&tivex_stmt_tx_t::abwa, "ABWA+"},
    {&tivex_stmt_tx_t::abwe, "ABWE+"},       {&tivex_stmt_tx_t::purp, "PURP+"},
    {&tivex_stmt_tx_t::coam, "COAM+", true}, {&tivex_stmt_tx_t::oamt, "OAMT+", true},
    {&tivex_stmt_tx_t::debt, "DEBT+"},
};

}  // namespace

const keyword_row* keyword_of(const char* characters) {
  const auto* const row = std::find_if(
      std::begin(keywords), std::end(keywords), [characters](const keyword_row& candidate) {
        return std::memcmp(characters, candidate.keyword, keyword_length) == 0;
      });
  return row == std::end(keywords) ? nullptr : row;
}

}  // namespace tivex
