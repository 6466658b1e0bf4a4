#include "statements/camt/other_side.h"

#include <cstring>

#include "statements/utf8.h"

namespace tivex {

namespace {

char* name_of(const side_value& side) {
  return first_of(side.party.name, side.party.inner_name, side.party.agent.name);
}

char* account_of(const side_value& side) { return first_of(side.account.iban, side.account.other); }

char* bank_of(const side_value& side) {
  const institution_value& own = side.party.agent;
  return first_of(side.agent.bicfi, side.agent.bic, side.agent.member, own.bicfi, own.bic,
                  own.member);
}

bool is_owner(const side_value& side, const char* own_account) {
  const char* const account = account_of(side);
  return account != nullptr && own_account != nullptr && std::strcmp(account, own_account) == 0;
}

bool is_named(const side_value& side) {
  return name_of(side) != nullptr || account_of(side) != nullptr;
}

const side_value& choose(const sides& sides, const char* own_account) {
  const bool expected_is_owner = is_owner(sides.expected, own_account);
  const bool opposite_is_owner = is_owner(sides.opposite, own_account);
  if (expected_is_owner && !opposite_is_owner) return sides.opposite;
  const bool gives_way = !is_named(sides.expected) && is_named(sides.opposite);
  return gives_way && !opposite_is_owner ? sides.opposite : sides.expected;
}

}  // namespace

void fill_other_side(tivex_stmt_tx_t& record, const sides& sides, const char* own_account) {
  const side_value& side = choose(sides, own_account);
  record.full_name = name_of(side);
  if (record.full_name != nullptr) copy_utf8_characters(record.name, record.full_name);
  const char* const account = account_of(side);
  if (account != nullptr) copy_utf8_characters(record.account_no, account);
  const char* const bank = bank_of(side);
  if (bank != nullptr) copy_utf8_characters(record.bank_code, bank);
}

}  // namespace tivex
