#include "terminal/standard_output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "platform/descriptor.h"
#include "platform/process.h"
#include "terminal/diagnostics.h"

namespace tivex_program {
namespace {

// What became of the last write.
std::string reason() { return std::string("standard output: ") + std::strerror(errno); }

}  // namespace

bool add_to_standard_output(std::string_view text) {
  return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() &&
         std::ferror(stdout) == 0;
}

void print_to_standard_output(std::string_view text) {
  if (add_to_standard_output(text)) return;
  end_when_reader_has_gone();
  throw std::runtime_error(reason());
}

bool flush_standard_output() {
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return true;
  end_when_reader_has_gone();
  print_error(reason());
  return false;
}

std::string write_standard_output(std::string_view text) {
  descriptor copy = descriptor::of_standard_output();
  if (copy && copy.write_all(text) && copy.close()) return {};
  end_when_reader_has_gone();
  return std::strerror(errno);
}

}  // namespace tivex_program
