#pragma once

#include "commands/payment_command.h"

namespace tivex_program {

extern const payment_command credit_transfer;

}  // namespace tivex_program
