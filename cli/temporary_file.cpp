#include "temporary_file.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <utility>

#include "exhausted_memory.h"

namespace tivex_program {
namespace {

// No other file has it, or the next try has another.
std::string passing_name(const std::string& folder) {
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  return folder + ".tivex-" + std::to_string(::getpid()) + '-' + std::to_string(now);
}

}  // namespace

temporary_file::temporary_file(std::string folder) : folder_(std::move(folder)) {
#ifdef O_TMPFILE
  file_ = descriptor(::open(folder_name(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
  path_ = "/proc/self/fd/" + std::to_string(file_.number());
  if (file_ && ::access(path_.c_str(), F_OK) == 0) return;
#endif
  path_ = folder_ + ".tivex-XXXXXX";
  held_.emplace();
  file_ = descriptor(::mkostemp(path_.data(), O_CLOEXEC));
  named_ = static_cast<bool>(file_);
  if (named_) remove_when_memory_ends(path_.c_str());
}

temporary_file::~temporary_file() {
  if (!named_) return;
  ::unlink(path_.c_str());
  remove_when_memory_ends(nullptr);
}

bool temporary_file::write(std::string_view text) const {
  constexpr std::size_t part_size = std::size_t{1} << 23;
  if (!file_) return false;
  while (text.size() > part_size) {
    if (!file_.write_all(text.substr(0, part_size))) return false;
    text.remove_prefix(part_size);
#ifdef SYNC_FILE_RANGE_WRITE
    // The disk works while the next part is copied: less is left to wait for in the end.
    ::sync_file_range(file_.number(), 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
  }
  return file_.write_all(text);
}

bool temporary_file::take_name(const std::string& target, mode_t mode) {
  if (::fchmod(file_.number(), mode) != 0 || ::fsync(file_.number()) != 0) return false;
  return (named_ ? rename_to(target) : link_as(target)) && sync_folder();
}

bool temporary_file::rename_to(const std::string& target) {
  if (!file_.close() || ::rename(path_.c_str(), target.c_str()) != 0) return false;
  named_ = false;
  remove_when_memory_ends(nullptr);
  return true;
}

bool temporary_file::link_as(const std::string& target) const {
  const auto link = [this](const char* name) {
    return ::linkat(AT_FDCWD, path_.c_str(), AT_FDCWD, name, AT_SYMLINK_FOLLOW) == 0;
  };
  if (link(target.c_str())) return true;
  // A name that is taken is had by renaming only: for that moment there is another.
  while (errno == EEXIST) {
    const std::string name = passing_name(folder_);
    const signals_held held;
    if (!link(name.c_str())) continue;
    if (::rename(name.c_str(), target.c_str()) == 0) return true;
    const int reason = errno;
    ::unlink(name.c_str());
    errno = reason;
    return false;
  }
  return false;
}

// Some file systems cannot sync a folder, and not everyone may read it.
bool temporary_file::sync_folder() const {
  const descriptor folder(::open(folder_name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return !folder || ::fsync(folder.number()) == 0 || errno != EIO;
}

}  // namespace tivex_program
