#include "files/temporary_copy.h"

#include <cerrno>
#include <cstring>

#include "platform/process.h"

namespace tivex_program {

temporary_copy::temporary_copy(std::string_view text)
    : file_(temporary_folder(), access_meanwhile::open_to_others) {
  if (!file_.write(text)) error_ = std::strerror(errno);
}

}  // namespace tivex_program
