#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/descriptor.h"
#include "platform/signals_held.h"

namespace tivex_program {

// Whether others may open the file by its path before it has its name.
enum class access_meanwhile { open_to_others, own };

// A file that its owner alone can read, of which nothing stays unless it is given a
// name. Where the system allows it has none before, so that not even a killed program
// leaves it behind; elsewhere the signals that can be held back are, as long as it lives.
// On Windows a file that is its own vanishes with the program, too.
class temporary_file {
 public:
  // In a folder: "" is the current one, other names end with a separator. Whether there is
  // a file tells the first call of `write`.
  temporary_file(std::string folder, access_meanwhile access);
  ~temporary_file();
  temporary_file(const temporary_file&) = delete;
  temporary_file& operator=(const temporary_file&) = delete;

  // The name to open it by meanwhile.
  const std::string& path() const { return path_; }
  // False, with the reason in errno, when not all was written.
  bool write(std::string_view text) const;
  // Makes it the file of that name, a whole path into the folder, with the rights of the
  // file that it replaces: the name leads to the old file or the new one at every moment.
  // False, with the reason in errno, when the old one stays.
  bool take_name(const std::string& target);

 private:
  bool rename_to(const std::string& target);

  std::string folder_;
  std::string path_;
  descriptor file_;
  std::optional<signals_held> held_;
  bool named_ = false;
};

}  // namespace tivex_program
