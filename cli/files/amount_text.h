#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// What separates the decimals of an amount.
enum class decimal_sign : char { unknown = '\0', point = '.', comma = ',' };

// An amount by one decimal sign, as digits and a point before decimals.
struct amount_reading {
  std::string value;               // empty when the text is no amount by the sign
  bool has_more_decimals = false;  // was written with more than two, which makes it doubtful
  bool has_parts_of_a_cent = false;
};

struct written_amount {
  amount_reading by_point;
  amount_reading by_comma;
  const char* fault = "";  // why there is no reading at all

  const amount_reading& by(decimal_sign sign) const {
    return sign == decimal_sign::comma ? by_comma : by_point;
  }
  // The sign by which alone it can be read, without doubt.
  decimal_sign decides() const;
  // Whether it is the same amount by both.
  bool is_clear() const;
};

// Reads 2480.15, 2480,15, 2.480,15, 2,480.15, 2 480,15, 2'480.15, with € or EUR before or
// behind it.
written_amount read_amount(std::string_view text);

// Whether the text is digits, a point and one or two digits, or digits alone.
bool is_prescribed_amount(std::string_view text, bool& has_point);

}  // namespace tivex_program
