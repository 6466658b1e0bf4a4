#include "payments/amount_column.h"

#include <string_view>
#include <utility>

namespace tivex_program {
namespace {

constexpr const char* decide_advice = "say which with --decimal , or --decimal .";
constexpr const char* write_advice = "write it as 2480.15 or 2480,15";
constexpr char sound_amount = '1';

// With cents.
std::string shown(const std::string& value) {
  const std::size_t point = value.find('.');
  if (point == std::string::npos) return value + ".00";
  return value.size() - point == 2 ? value + '0' : value;
}

std::string name_of(decimal_sign sign) {
  return sign == decimal_sign::comma ? "decimal comma" : "decimal point";
}

read_cell refused(const char* fault, std::string detail, const char* advice) {
  return {fault, std::move(detail), advice};
}

}  // namespace

read_cell amount_column::read(std::string& cell, std::size_t line) {
  if (takes_as_it_is(cell)) return {};
  const written_amount amount = read_amount(cell);
  if (*amount.fault != '\0') return refused(amount.fault, {}, write_advice);
  if (wished_ == decimal_sign::unknown && !amount.is_clear()) {
    const decimal_sign decided = amount.decides();
    if (decided == decimal_sign::unknown) return read_doubtful(cell, amount);
    if (evidence_.sign == decimal_sign::unknown) evidence_ = {decided, line};
    if (evidence_.sign != decided) return contradict(cell, decided);
  }
  const amount_reading& reading = amount.by(sign());
  if (reading.value.empty()) {
    return refused(sign() == decimal_sign::comma ? "not an amount with a decimal comma"
                                                 : "not an amount with a decimal point",
                   {}, "write all amounts alike");
  }
  if (reading.has_parts_of_a_cent) return refused("parts of a cent", {}, "round it to cents");
  cell = reading.value;
  return {};
}

read_cell amount_column::read_doubtful(std::string& cell, const written_amount& amount) {
  if (evidence_.sign == decimal_sign::unknown) {
    left_open_ = true;
    const std::string& point = amount.by_point.value;
    const std::string& comma = amount.by_comma.value;
    if (point.empty() || comma.empty()) {
      return refused("more than two decimals", shown(point.empty() ? comma : point) + '?',
                     decide_advice);
    }
    return refused("may be thousands or decimals", shown(comma) + " or " + shown(point),
                   decide_advice);
  }
  const amount_reading& reading = amount.by(evidence_.sign);
  if (reading.value.empty()) {
    return refused("more than two decimals", "by another decimal sign than the others",
                   decide_advice);
  }
  if (reading.has_parts_of_a_cent) return refused("parts of a cent", {}, "round it to cents");
  ++decided_;
  cell = reading.value;
  return {};
}

// One of the two is told; what stands behind it is read no more.
read_cell amount_column::contradict(std::string& cell, decimal_sign sign) {
  if (std::exchange(contradicted_, true)) {
    cell = sound_amount;
    return {};
  }
  return refused("the amounts of the column have no decimal sign in common",
                 name_of(sign) + " here, " + name_of(evidence_.sign) + " on line " +
                     std::to_string(evidence_.line),
                 "write all amounts alike, or give --decimal");
}

}  // namespace tivex_program
