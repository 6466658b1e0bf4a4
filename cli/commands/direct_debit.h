#pragma once

#include "commands/payment_command.h"

namespace tivex_program {

extern const payment_command direct_debit;

}  // namespace tivex_program
