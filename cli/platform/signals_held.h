#pragma once

#ifndef _WIN32
#include <csignal>
#endif

namespace tivex_program {

// Holds back every signal that can be, while a temporary file has a name: those that
// would end the program and leave it behind arrive when it is gone.
class signals_held {
 public:
  signals_held();
  ~signals_held();
  signals_held(const signals_held&) = delete;
  signals_held& operator=(const signals_held&) = delete;

 private:
#ifndef _WIN32
  sigset_t before_{};
#endif
};

}  // namespace tivex_program
