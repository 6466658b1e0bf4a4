#include "transactions/field_checks.h"

#include <string_view>

#include "core/rulebook.h"
#include "transactions/charset.h"
#include "validation/ascii.h"
#include "validation/bic_text.h"
#include "validation/creditor_reference.h"
#include "validation/format_check.h"
#include "validation/iban.h"

namespace tivex {

namespace {

bool store(message& msg, owned_text& field, std::string_view value) {
  msg.keep_copy(field, value);
  return true;
}

// A value with its length; a null value becomes a view of nothing.
std::string_view measured(const char* value) {
  return value != nullptr ? std::string_view(value) : std::string_view();
}

bool has_length(const text_rule& rule, std::string_view text) {
  return text.data() != nullptr && text.size() >= rule.shortest && text.size() <= rule.longest;
}

bool check_characters(message& msg, const text_rule& rule, const char* value) {
  char offending = '\0';
  return rule.level == ANY_CHARACTERS || charset_check(value, &offending, rule.level) ||
         msg.fail_with(rule.character_error, offending);
}

}  // namespace

bool accept_text(message& msg, const text_rule& rule, const char* value, owned_text& field) {
  const std::string_view text = measured(value);
  if (!has_length(rule, text)) return msg.fail(rule.length_error);
  return check_characters(msg, rule, value) && store(msg, field, text);
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
  const std::string_view text = measured(value);
  if (!has_length(rule, text) || !is_upper(text[0]) || !is_upper(text[1])) {
    return msg.fail(rule.length_error);
  }
  return store(msg, field, text);
}

bool accept_address_line(message& msg, const text_rule& rule, const char* value,
                         owned_text& field) {
  const rulebook_rules& rules = current_rules();
  if (rules.structured_address && !rules.hybrid_address) {
    return msg.fail("selected SEPA rulebook requires structured address data");
  }
  if (!format_check(FORMAT_TEXT70, value)) return msg.fail(rule.length_error);
  return check_characters(msg, rule, value) && store(msg, field, value);
}

bool accept_creditor_reference(message& msg, const text_rule& /*rule*/, const char* value,
                               owned_text& field) {
  const std::string_view reference = measured(value);
  const char* const fault = creditor_reference_fault(reference);
  return fault == nullptr ? store(msg, field, reference) : msg.fail(fault);
}

}  // namespace tivex
