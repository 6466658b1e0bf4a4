// The exported conversions between German bank codes with accounts, IBANs and BICs.
#include <cstring>

#include "de_account/account_check.h"
#include "de_iban/rules.h"
#include "directory/find_bank.h"
#include "platform/platform.h"
#include "tivex.h"
#include "validation/mod97.h"

namespace tivex::iban_rules {

namespace {

enum conversion_result { BANK_UNKNOWN = -3, NOT_MADE = -1, NOT_GERMAN = 0, CONVERTED = 1 };

// An IBAN while it is made.
struct iban_text {
  char text[iban_buffer_size] = {};

  iban_text() = default;
  iban_text(const iban_text&) = delete;
  iban_text& operator=(const iban_text&) = delete;
  ~iban_text() { platform::wipe(text, sizeof text); }
};

unsigned rule_number(std::int32_t iban_rule) { return static_cast<unsigned>(iban_rule) / 100; }

// The text of a length, or an empty one.
std::string_view text_of_length(const char* text, std::size_t shortest, std::size_t longest) {
  if (text == nullptr) return {};
  const std::size_t length = strnlen(text, longest + 1);
  return {text, shortest <= length && length <= longest ? length : 0};
}

// Applies the rules of the bank and, as long as there is one, of its successor,
// each to the account as the rule before left it. Returns the last rule's result,
// or BANK_UNKNOWN.
int apply_rules(char* iban, rule_input& input) {
  // The edition is checked for circles; a damaged one must end all the same.
  constexpr int most_successors = 100;
  for (int successors = 0; successors <= most_successors; ++successors) {
    german_bank bank;
    if (!directory_find_german_bank(input.bank_code_text(), bank)) break;
    input.method = bank.method;
    input.check_result = static_cast<std::int8_t>(
        check_digits::check_account(input.digits(), input.bank_code, input.method));
    const unsigned rule = rule_number(bank.iban_rule);
    const int result =
        rule < iban_rule_table.size() ? static_cast<int>(iban_rule_table[rule](iban, input)) : 0;
    if (bank.successor.size() != bank_code_length) return result;
    input.set_bank_code(bank.successor);
    input.status = STATUS_SUCCESSOR_USED;
  }
  input.status = STATUS_BANK_UNKNOWN;
  return BANK_UNKNOWN;
}

std::uint8_t status_of(std::string_view account, std::string_view bank_code,
                       const rule_input& input) {
  if (input.status != STATUS_AS_GIVEN) return input.status;
  if (input.check_result == TIVEX_ACCOUNT_INVALID) return STATUS_ACCOUNT_INVALID;
  if (!input.has_account(account)) return STATUS_ACCOUNT_REPLACED;
  if (!input.has_bank_code(bank_code)) return STATUS_BANK_CODE_REPLACED;
  return STATUS_AS_GIVEN;
}

// Computes the check digits by ISO 13616. False for a character that is neither
// digit nor letter.
bool set_check_digits(char* iban) {
  iban[2] = iban[3] = '0';
  constexpr std::size_t head_length = 4;
  mod97_number number;
  number.append({iban + head_length, german_iban_length - head_length});
  number.append({iban, head_length});
  if (!number.is_number()) return false;
  const int check_number = 98 - number.remainder();
  iban[2] = static_cast<char>('0' + check_number / 10);
  iban[3] = static_cast<char>('0' + check_number % 10);
  return true;
}

int convert(std::string_view account, std::string_view bank_code, iban_text& iban,
            std::uint8_t& status) {
  const check_digits::normalised_account given(account);
  rule_input input;
  input.set_account(given.text());
  input.set_bank_code(bank_code);
  const int result = apply_rules(iban.text, input);
  status = status_of(given.text(), bank_code, input);
  if (result != MADE) return result;
  if (input.check_result == TIVEX_ACCOUNT_INVALID) return NOT_MADE;
  return set_check_digits(iban.text) ? CONVERTED : BANK_UNKNOWN;
}

// Where the bank code stands in an IBAN, for countries with a directory.
struct iban_layout {
  const char* country;
  const char* directory;
  std::size_t length;
  std::size_t bank_code_width;
};

constexpr iban_layout iban_layouts[] = {
    {"AT", "AT", 20, 5}, {"CH", "CH", 21, 5}, {"LI", "CH", 21, 5}, {"DE", "DE", 22, 8}};

const iban_layout* find_layout(const char* iban) {
  for (const iban_layout& layout : iban_layouts) {
    if (iban != nullptr && std::strncmp(iban, layout.country, 2) == 0) return &layout;
  }
  return nullptr;
}

// Two groups of banks use another BIC than the directory has.
const char* bic_of(const bank_record& bank, const char* bank_code) {
  switch (rule_number(bank.iban_rule)) {
    case 5:
      return bank_code[3] == '4' && std::strncmp(bank_code + 4, "11", 2) != 0 ? "COBADEFFXXX"
                                                                              : bank.bic;
    case 14:
      return "DAAEDEDDXXX";
    default:
      return bank.bic;
  }
}

}  // namespace

}  // namespace tivex::iban_rules

int tivex_iban_convert(const char* country, const char* account, const char* bank_code, char* iban,
                       unsigned char* status) {
  using namespace tivex::iban_rules;
  if (iban != nullptr) *iban = '\0';
  if (status != nullptr) *status = STATUS_AS_GIVEN;
  if (country == nullptr) return NOT_MADE;
  if (std::strcmp(country, "DE") != 0) return NOT_GERMAN;
  const auto bank_text = text_of_length(bank_code, bank_code_length, bank_code_length);
  const auto account_text = text_of_length(account, 1, account_length);
  if (bank_text.empty() || account_text.empty()) return NOT_MADE;
  iban_text made;
  std::uint8_t reached = STATUS_AS_GIVEN;
  const int result = convert(account_text, bank_text, made, reached);
  if (status != nullptr) *status = reached;
  if (result == CONVERTED && iban != nullptr) std::memcpy(iban, made.text, sizeof made.text);
  return result;
}

int tivex_iban_getBIC(const char* iban, char* bic) {
  using namespace tivex;
  using namespace tivex::iban_rules;
  if (bic != nullptr) std::memset(bic, 0, bic_length + 1);
  const iban_layout* const layout = find_layout(iban);
  if (layout == nullptr) return NOT_GERMAN;
  if (text_of_length(iban, layout->length, layout->length).empty()) return NOT_MADE;
  char bank_code[widest_bank_code + 1] = {};
  std::memcpy(bank_code, iban + 4, layout->bank_code_width);
  bank_record bank;
  if (directory_find_bank(layout->directory, bank_code, &bank) == 0) return BANK_UNKNOWN;
  const char* const found = bic_of(bank, bank_code);
  if (bic != nullptr && found != nullptr) {
    std::memcpy(bic, found, strnlen(found, bic_length));
  }
  return CONVERTED;
}
