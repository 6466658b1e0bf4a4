#include "payments/payment_message.h"

#include "payments/library_calls.h"

namespace tivex_program {

message_handle make_message(const payment_header& header, std::string& fault) {
  message_handle message = new_message(header.message_type);
  for (const auto& [option, text] : header.values) {
    std::string reason = option->rule(text);
    if (!option->only_rulebook.empty() && option->only_rulebook != header.rulebook) {
      reason = "needs rulebook " + std::string(option->only_rulebook);
    }
    if (reason.empty() && option->set(message.get(), text.c_str()) != 1) {
      reason = library_error(message.get());
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
