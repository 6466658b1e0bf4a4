#include "temporary_copy.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "descriptor.h"

namespace tivex_program {
namespace {

std::string name_template() {
  const char* const directory = std::getenv("TMPDIR");
  const bool usual = directory == nullptr || *directory == '\0';
  return std::string(usual ? "/tmp" : directory) + "/tivex-XXXXXX";
}

}  // namespace

temporary_copy::temporary_copy(std::string_view text) : path_(name_template()) {
  descriptor file(::mkostemp(path_.data(), O_CLOEXEC));
  exists_ = static_cast<bool>(file);
  if (!exists_ || !file.write_all(text) || !file.close()) error_ = std::strerror(errno);
}

temporary_copy::~temporary_copy() {
  if (exists_) ::unlink(path_.c_str());
}

}  // namespace tivex_program
