#pragma once

#include <span>

#include "payments/header_option.h"
#include "payments/transaction_kind.h"

namespace CLI {
class App;
}

namespace tivex_program {

// A command that writes one payment document from a CSV file.
struct payment_command {
  const char* name;
  const char* description;
  const char* example;
  std::span<const header_option> options;
  transaction_kind transactions;
};

// Adds the command to the program; when it runs it sets the exit status. The
// command and what it refers to must outlive the program's arguments.
void add_payment_command(CLI::App& program, const payment_command& command, int& exit_status);

}  // namespace tivex_program
