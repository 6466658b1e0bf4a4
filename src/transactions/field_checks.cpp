#include "transactions/field_checks.h"

#include <cstring>

#include "core/rulebook.h"
#include "transactions/charset.h"
#include "validation/ascii.h"
#include "validation/bic_text.h"
#include "validation/format_check.h"
#include "validation/iban.h"

namespace tivex {

namespace {

bool store(message& msg, owned_text& field, const char* value) {
  msg.keep_copy(field, value);
  return true;
}

bool has_length(const text_rule& rule, const char* value) {
  if (value == nullptr) return false;
  const std::size_t length = std::strlen(value);
  return length >= rule.shortest && length <= rule.longest;
}

bool check_characters(message& msg, const text_rule& rule, const char* value) {
  char offending = '\0';
  return rule.level == ANY_CHARACTERS || charset_check(value, &offending, rule.level) ||
         msg.fail_with(rule.character_error, offending);
}

}  // namespace

bool accept_text(message& msg, const text_rule& rule, const char* value, owned_text& field) {
  if (!has_length(rule, value)) return msg.fail(rule.length_error);
  return check_characters(msg, rule, value) && store(msg, field, value);
}

bool accept_iban(message& msg, const text_rule& /*rule*/, const char* value, owned_text& field) {
  const char* reason = nullptr;
  if (!iban_validate(value, &reason)) return msg.fail(reason);
  return store(msg, field, value);
}

bool accept_bic(message& msg, const text_rule& /*rule*/, const char* value, owned_text& field) {
  bic_text upper;
  if (!upper.set(value)) return msg.fail("Invalid BIC");
  if (!format_check(FORMAT_BIC, upper.c_str())) return msg.fail("Invalid BIC format");
  return store(msg, field, upper.c_str());
}

bool accept_country(message& msg, const text_rule& rule, const char* value, owned_text& field) {
  if (!has_length(rule, value) || !is_upper(value[0]) || !is_upper(value[1])) {
    return msg.fail(rule.length_error);
  }
  return store(msg, field, value);
}

bool accept_address_line(message& msg, const text_rule& rule, const char* value,
                         owned_text& field) {
  if (current_rules().structured_address) {
    return msg.fail("selected SEPA rulebook requires structured address data");
  }
  if (!format_check(FORMAT_TEXT70, value)) return msg.fail(rule.length_error);
  return check_characters(msg, rule, value) && store(msg, field, value);
}

}  // namespace tivex
