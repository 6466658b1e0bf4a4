#include "platform/signals_held.h"

namespace tivex_program {

signals_held::signals_held() {
  sigset_t all;
  sigfillset(&all);
  sigprocmask(SIG_BLOCK, &all, &before_);
}

signals_held::~signals_held() { sigprocmask(SIG_SETMASK, &before_, nullptr); }

}  // namespace tivex_program
