#include "standard_output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "diagnostics.h"

namespace tivex_program {

bool flush_standard_output() {
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return true;
  print_error(std::string("standard output: ") + std::strerror(errno));
  return false;
}

}  // namespace tivex_program
