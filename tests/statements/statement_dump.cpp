#include "statements/statement_dump.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <iterator>

namespace {

// Lines "prefix name=value" of the fields of one record.
class field_lines {
 public:
  field_lines(std::string& lines, std::string prefix) : lines_(lines), prefix_(std::move(prefix)) {}

  void add(const char* name, const char* text) {
    if (text == nullptr) return;
    std::string value;
    for (; *text != '\0'; ++text) {
      const bool plain = *text >= ' ' && *text <= '~' && *text != '\\';
      value +=
          plain ? std::string(1, *text) : printed("\\x%02X", static_cast<unsigned char>(*text));
    }
    add_value(name, value);
  }
  void add(const char* name, long long number) {
    if (number != 0) add_value(name, std::to_string(number));
  }
  void add(const char* name, double number) {
    const bool plain_zero = number == 0 && !std::signbit(number);
    if (!plain_zero) add_value(name, std::isnan(number) ? "nan" : digits_of(number));
  }
  void add(const char* name, const std::tm& date) {
    std::tm rest = date;
    rest.tm_mday = rest.tm_mon = rest.tm_year = 0;
    const int others =
        rest.tm_sec | rest.tm_min | rest.tm_hour | rest.tm_wday | rest.tm_yday | rest.tm_isdst;
    if ((date.tm_mday | date.tm_mon | date.tm_year | others) == 0) return;
    add_value(name, std::to_string(date.tm_mday) + ',' + std::to_string(date.tm_mon) + ',' +
                        std::to_string(date.tm_year) + (others == 0 ? "" : ",more"));
  }

 private:
  template <class number>
  static std::string printed(const char* format, number value) {
    char text[40];
    std::snprintf(text, sizeof text, format, value);
    return text;
  }
  // As "%.17g" prints it where no locale is set.
  static std::string digits_of(double number) {
    char text[40];
    return {text,
            std::to_chars(std::begin(text), std::end(text), number, std::chars_format::general, 17)
                .ptr};
  }
  void add_value(const char* name, const std::string& value) {
    if (!value.empty()) lines_ += prefix_ + name + '=' + value + '\n';
  }

  std::string& lines_;
  std::string prefix_;
};

#define ADD(field) lines.add(#field, record.field)

void add_entry(field_lines lines, const tivex_stmt_tx_t& record) {
  ADD(value_date);
  ADD(booking_date);
  lines.add("reversal", static_cast<long long>(record.reversal));
  ADD(amount);
  ADD(type_code);
  ADD(customer_ref);
  ADD(bank_ref);
  ADD(booking_text);
  ADD(primanota);
  lines.add("gvc", static_cast<long long>(record.gvc));
  lines.add("text_key_ext", static_cast<long long>(record.text_key_ext));
  ADD(bank_code);
  ADD(account_no);
  ADD(name);
  ADD(purpose);
  ADD(eref);
  ADD(kref);
  ADD(mref);
  ADD(cred);
  ADD(debt);
  ADD(purp);
  ADD(coam);
  ADD(oamt);
  ADD(svwz);
  ADD(abwa);
  ADD(abwe);
  // Mostly it is what stands in the name.
  if (record.full_name != nullptr && record.full_name != std::string(record.name)) ADD(full_name);
  ADD(return_reason);
}

void add_statement(field_lines lines, const tivex_stmt_t& record) {
  ADD(reference);
  ADD(account);
  lines.add("statement_no", static_cast<long long>(record.statement_no));
  lines.add("sequence_no", static_cast<long long>(record.sequence_no));
  ADD(opening_date);
  ADD(closing_date);
  ADD(opening_balance);
  ADD(closing_balance);
  ADD(opening_currency);
  ADD(closing_currency);
}

#undef ADD

}  // namespace

std::string dump_of(const tivex_stmt_t* first) {
  std::string lines;
  int number = 0;
  for (const tivex_stmt_t* statement = first; statement != nullptr; statement = statement->next) {
    const std::string prefix = "stmt " + std::to_string(number++) + ' ';
    add_statement({lines, prefix}, *statement);
    int entry_number = 0;
    for (const tivex_stmt_tx_t* entry = statement->first_tx; entry != nullptr;
         entry = entry->next) {
      add_entry({lines, prefix + "tx " + std::to_string(entry_number++) + ' '}, *entry);
    }
  }
  return lines;
}
