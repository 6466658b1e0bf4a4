#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "files/amount_text.h"

namespace tivex_program {

// What the amounts of a column tell of their decimal sign.
struct decimal_evidence {
  decimal_sign sign = decimal_sign::unknown;
  std::size_t line = 0;  // of the first amount that tells it; 0 when an option does
};

// What became of an amount.
struct read_cell {
  const char* fault = "";  // the same for all amounts with it
  std::string detail;      // of this amount
  const char* advice = "";
};

// Reads the amounts of one column, which all have the same decimal sign. An amount that may
// be thousands or decimals is read by the sign that is known, and by none refused.
class amount_column {
 public:
  // A sign that is wished decides; one that is found may be contradicted.
  explicit amount_column(decimal_sign wished, decimal_evidence found = {})
      : wished_(wished), evidence_(found) {}

  // Whether the amount is written so already; most are.
  bool takes_as_it_is(std::string_view cell) const {
    bool has_point = false;
    return is_prescribed_amount(cell, has_point) && (!has_point || sign() == decimal_sign::point);
  }

  // Writes the amount as the library reads it.
  read_cell read(std::string& cell, std::size_t line);

  decimal_sign sign() const { return wished_ != decimal_sign::unknown ? wished_ : evidence_.sign; }
  // Whether an amount was refused that another one behind it may decide.
  bool left_open() const { return left_open_; }
  // How many amounts that may be thousands or decimals were read by the sign of the others.
  std::uint64_t decided() const { return decided_; }

 private:
  read_cell read_doubtful(std::string& cell, const written_amount& amount);
  read_cell contradict(std::string& cell, decimal_sign sign);

  decimal_sign wished_;
  decimal_evidence evidence_;
  bool contradicted_ = false;
  bool left_open_ = false;
  std::uint64_t decided_ = 0;
};

}  // namespace tivex_program
