// The exported checks of German account numbers.
#include "de_account/account_check.h"

#include "de_account/account_methods.h"
#include "de_account/bank_code_methods.h"
#include "tivex.h"

namespace tivex::check_digits {

namespace {

constexpr std::size_t bank_code_length = 8;

// Empty when the account is null or too long.
std::string_view account_text(const char* account) {
  if (account == nullptr) return {};
  const std::size_t length = strnlen(account, normalised_account::width + 1);
  return {account, length <= normalised_account::width ? length : 0};
}

bank_code_method* find_bank_code_method(unsigned char code) {
  switch (code) {
    case 0x52:
      return method_52;
    case 0x53:
      return method_53;
    case 0xB6:
      return method_b6;
    case 0xC0:
      return method_c0;
    default:
      return nullptr;
  }
}

}  // namespace

account_result check_account(const normalised_account& account, const char* bank_code,
                             unsigned char method) {
  if (account_method* const check = account_methods[method]) return check(account);
  bank_code_method* const check = find_bank_code_method(method);
  return check == nullptr || bank_code == nullptr ? NOT_CHECKED : check(account, bank_code);
}

}  // namespace tivex::check_digits

int tivex_account_check(const char* account, int method) {
  using namespace tivex::check_digits;
  const std::string_view text = account_text(account);
  if (text.empty()) return INVALID;
  return check_account(normalised_account(text), nullptr, static_cast<unsigned char>(method));
}

int tivex_account_check2(const char* account, const char* bank_code, int method) {
  using namespace tivex::check_digits;
  const std::string_view text = account_text(account);
  if (text.empty() || bank_code == nullptr) return INVALID;
  if (strnlen(bank_code, bank_code_length + 1) != bank_code_length) return INVALID;
  return check_account(normalised_account(text), bank_code, static_cast<unsigned char>(method));
}
