#include "payments/schema_flaw.h"

namespace tivex_program {
namespace {

struct header_value {
  std::string_view start;  // of the library's texts
  const char* option;
};
constexpr header_value header_values[] = {{"message: IBAN ", "--iban: "},
                                          {"message: BIC ", "--bic: "},
                                          {"message: name ", "--name: "},
                                          {"message: creditor identifier ", "--creditor-id: "},
                                          {"message: date ", "--date: "},
                                          {"message: message id ", "--message-id: "},
                                          {"Missing creditor BIC", "--bic: Missing creditor BIC"}};

}  // namespace

std::string header_flaw(std::string_view error) {
  for (const header_value& value : header_values) {
    if (error.starts_with(value.start)) {
      return value.option + std::string(error.substr(value.start.size()));
    }
  }
  return std::string(error);
}

// "transaction 7: key reason"
row_fault transaction_flaw(std::string_view error) {
  constexpr std::string_view separator = ": ";
  const std::size_t key = error.find(separator) + separator.size();
  const std::size_t blank = error.find(' ', key);
  if (!error.starts_with("transaction ") || blank == std::string_view::npos) {
    return {"", std::string(error)};
  }
  return {std::string(error.substr(key, blank - key)), std::string(error.substr(blank + 1))};
}

}  // namespace tivex_program
