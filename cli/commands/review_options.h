#pragma once

#include <string>

#include "payments/payment_review.h"

namespace CLI {
class App;
}

namespace tivex_program {

// As the user writes them.
struct review_arguments {
  std::string unknown_banks = "refuse";
  std::string today;
  review_wishes wishes;
};

// Adds what a payment command does beyond writing what the file says.
void add_review_options(CLI::App& command, review_arguments& arguments);

review_wishes review_of(const review_arguments& arguments);

}  // namespace tivex_program
