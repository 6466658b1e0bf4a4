#pragma once

#include <csignal>

namespace tivex_program {

// Holds back every signal that can be, while a temporary file has a name: those that
// would end the program and leave it behind arrive when it is gone.
class signals_held {
 public:
  signals_held() {
    sigset_t all;
    sigfillset(&all);
    sigprocmask(SIG_BLOCK, &all, &before_);
  }
  ~signals_held() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  signals_held(const signals_held&) = delete;
  signals_held& operator=(const signals_held&) = delete;

 private:
  sigset_t before_{};
};

}  // namespace tivex_program
