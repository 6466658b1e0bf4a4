#pragma once

#include <tivex.h>

#include <cstdlib>
#include <memory>

namespace tivex_program {

struct bank_deleter {
  void operator()(tivex_bank_info_t* bank) const { std::free(bank); }
};
using bank_handle = std::unique_ptr<tivex_bank_info_t, bank_deleter>;

}  // namespace tivex_program
