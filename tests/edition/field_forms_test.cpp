// The forms that fields of the edition take: what just fits and what just does not.

#include "field_forms.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace tivex_edition;

struct form_case {
  const char* name;
  bool (*fits)(std::string_view);
  std::vector<std::string> good;
  std::vector<std::string> bad;
};

}  // namespace

TEST(FieldForms, FitOrDoNot) {
  const form_case cases[] = {
      {"bank code of 5", is_bank_code5, {"00100", "99999"}, {"", "0100", "001000", "0010a"}},
      {"bank code of 8", is_bank_code8, {"10000000"}, {"", "1000000", "1000000O"}},
      {"successor", is_bank_code8_or_empty, {"", "10000000"}, {"0", "100000000"}},
      {"BIC", is_bic, {"MARKDEF1100"}, {"", "MARKDEFF", "markdef1100", "MARKDEF1_00"}},
      {"BIC or none", is_bic_or_empty, {"", "MARKDEF1100"}, {" ", "MARKDEFF"}},
      {"date",
       is_date,
       {"2025-03-03", "2024-02-29", "2000-02-29"},
       {"", "2025-02-29", "1900-02-29", "2025-13-01", "2025-00-01", "2025-04-31", "2025-3-3",
        "2025/03/03", "2025-03-03 ", "20250303"}},
      {"date or none", is_date_or_empty, {"", "2025-03-03"}, {"2025-02-30"}},
      {"flag", is_flag, {"0", "1"}, {"", "2", "00"}},
      {"flags", is_flags_byte, {"0x00", "0x0B", "0xFF"}, {"", "0B", "0x0b", "0x0", "0x0BB"}},
      {"method", is_method, {"00", "E4", "FF"}, {"", "0", "e4", "G0", "000"}},
      {"rule", is_iban_rule, {"0", "503", "5799"}, {"", "00", "0503", "5800", "-1", "50300"}},
      {"country", is_country_or_empty, {"", "LI"}, {"L", "li", "LIE", "L1"}},
      {"number", is_number, {"0", "10"}, {"", "01", "-1", "1.0"}},
      {"account", is_account, {"0000000000"}, {"", "000000000", "00000000000", "000000000x"}},
      {"prefix", is_prefix, {"100", "999"}, {"", "010", "10", "1000"}},
      {"German IBAN",
       is_german_iban,
       {"DE89370400440532013000"},
       {"", "DE88370400440532013000", "de89370400440532013000", "DE8937040044053201300",
        "AT611904300234573201", "DE8937040044053201300A"}},
      {"text",
       is_record_text,
       {"", "Köln", "a b", "\xC2\xA0", "\xF4\x8F\xBF\xBF"},
       {" a", "a ", "a|b", "a\tb", "\x7F", "\xC2\x85", "\xC3", "\xC0\xAF", "\xED\xA0\x80",
        "\xF4\x90\x80\x80", "\xE4"}},
  };
  for (const form_case& form : cases) {
    for (const std::string& text : form.good) EXPECT_TRUE(form.fits(text)) << form.name << text;
    for (const std::string& text : form.bad) EXPECT_FALSE(form.fits(text)) << form.name << text;
  }
}
