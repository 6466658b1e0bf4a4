#include "payments/payment_message.h"

#include "payments/admitted_characters.h"
#include "payments/clear_reason.h"
#include "payments/library_calls.h"

namespace tivex_program {

std::string_view given_value(const payment_header& header, std::string_view flag) {
  for (const auto& [option, text] : header.values) {
    if (option->flag == flag) return text;
  }
  return {};
}

std::string_view own_iban(const payment_header& header) {
  return header.true_iban.empty() ? given_value(header, "--iban") : header.true_iban;
}

message_handle make_message(const payment_header& header, std::string& fault) {
  message_handle message = new_message(header.message_type);
  for (const auto& [option, text] : header.values) {
    std::string reason = option->rule(text);
    if (!option->only_rulebook.empty() && option->only_rulebook != header.rulebook) {
      reason = "needs rulebook " + std::string(option->only_rulebook);
    }
    if (reason.empty() && option->set(message.get(), text.c_str()) != 1) {
      admitted_characters characters(header.message_type, header.strict);
      row_fault refused{option->flag, library_error(message.get())};
      make_clear(refused, text, characters);
      reason = one_text(refused);
    }
    if (reason.empty()) continue;
    fault = std::string(option->flag) + ": " + reason;
    break;
  }
  tivex_setBatchBooking(message.get(), header.single_booking ? 0 : 1);
  tivex_setStrict(message.get(), header.strict ? 1 : 0);
  return message;
}

}  // namespace tivex_program
