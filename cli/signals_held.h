#pragma once

#include <csignal>

namespace tivex_program {

// Holds back the signals that would end the program and leave a temporary file behind;
// they arrive when it is gone.
class signals_held {
 public:
  signals_held() {
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) sigaddset(&held, signal);
    sigprocmask(SIG_BLOCK, &held, &before_);
  }
  ~signals_held() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  signals_held(const signals_held&) = delete;
  signals_held& operator=(const signals_held&) = delete;

 private:
  sigset_t before_{};
};

}  // namespace tivex_program
