// The exported checks of German account numbers.
#include "de_account/account_methods.h"
#include "de_account/bank_code_methods.h"
#include "tivex.h"

namespace tivex::check_digits {

namespace {

constexpr std::size_t bank_code_length = 8;

// Empty when the account is null or too long.
std::string_view account_text(const char* account) {
  std::size_t length = 0;
  while (account != nullptr && length <= normalised_account::width && account[length] != '\0') {
    ++length;
  }
  return length <= normalised_account::width ? std::string_view(account, length)
                                             : std::string_view();
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

}  // namespace tivex::check_digits

int tivex_account_check(const char* account, int method) {
  using namespace tivex::check_digits;
  const std::string_view text = account_text(account);
  if (text.empty()) return INVALID;
  account_method* const check = account_methods[static_cast<unsigned char>(method)];
  return check == nullptr ? NOT_CHECKED : check(normalised_account(text));
}

int tivex_account_check2(const char* account, const char* bank_code, int method) {
  using namespace tivex::check_digits;
  const std::string_view text = account_text(account);
  if (text.empty() || bank_code == nullptr) return INVALID;
  if (strnlen(bank_code, bank_code_length + 1) != bank_code_length) return INVALID;
  bank_code_method* const check = find_bank_code_method(static_cast<unsigned char>(method));
  if (check == nullptr) return tivex_account_check(account, method);
  return check(normalised_account(text), bank_code);
}
