#include "temporary_copy.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace tivex_program {
namespace {

std::string folder() {
  const char* const directory = std::getenv("TMPDIR");
  const bool usual = directory == nullptr || *directory == '\0';
  return std::string(usual ? "/tmp" : directory) + '/';
}

}  // namespace

temporary_copy::temporary_copy(std::string_view text) : file_(folder()) {
  if (!file_.write(text)) error_ = std::strerror(errno);
}

}  // namespace tivex_program
