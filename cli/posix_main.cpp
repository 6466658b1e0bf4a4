#include <csignal>

#include "program.h"

int main(int argument_count, char** arguments) {
  // A write that fails is reported, and what it leaves behind is removed.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  return tivex_program::run_program(argument_count, arguments);
}
