#pragma once

#include <string>
#include <string_view>

#include "platform/temporary_file.h"

namespace tivex_program {

// Text in a file that its owner alone can read, in the folder of temporary files, for as
// long as the object lives.
class temporary_copy {
 public:
  explicit temporary_copy(std::string_view text);

  const std::string& path() const { return file_.path(); }
  // The reason why there is no whole copy, empty when there is one.
  const std::string& error() const { return error_; }

 private:
  temporary_file file_;
  std::string error_;
};

}  // namespace tivex_program
