#include "terminal/standard_output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "platform/descriptor.h"
#include "terminal/diagnostics.h"

namespace tivex_program {

bool flush_standard_output() {
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return true;
  print_error(std::string("standard output: ") + std::strerror(errno));
  return false;
}

std::string write_standard_output(std::string_view text) {
  descriptor copy = descriptor::of_standard_output();
  return copy && copy.write_all(text) && copy.close() ? "" : std::strerror(errno);
}

}  // namespace tivex_program
