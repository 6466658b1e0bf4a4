#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <utility>

#include "platform/exhausted_memory.h"
#include "platform/temporary_file.h"

namespace tivex_program {
namespace {

const char* name_of_folder(const std::string& folder) {
  return folder.empty() ? "." : folder.c_str();
}

// No other file has it, or the next try has another.
std::string passing_name(const std::string& folder) {
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  return folder + ".tivex-" + std::to_string(::getpid()) + '-' + std::to_string(now);
}

bool link_as(const std::string& path, const std::string& folder, const std::string& target) {
  const auto link = [&path](const char* name) {
    return ::linkat(AT_FDCWD, path.c_str(), AT_FDCWD, name, AT_SYMLINK_FOLLOW) == 0;
  };
  if (link(target.c_str())) return true;
  // A name that is taken is had by renaming only: for that moment there is another.
  while (errno == EEXIST) {
    const std::string name = passing_name(folder);
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
bool sync_folder(const std::string& name) {
  const descriptor folder(::open(name_of_folder(name), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return !folder || ::fsync(folder.number()) == 0 || errno != EIO;
}

mode_t new_file_mode() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

mode_t mode_of(const std::string& target) {
  struct stat status {};
  return ::stat(target.c_str(), &status) == 0 ? status.st_mode & 07777 : new_file_mode();
}

}  // namespace

temporary_file::temporary_file(std::string folder, access_meanwhile /*access*/)
    : folder_(std::move(folder)) {
#ifdef O_TMPFILE
  file_ = descriptor(::open(name_of_folder(folder_), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
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

bool temporary_file::take_name(const std::string& target) {
  if (::fchmod(file_.number(), mode_of(target)) != 0 || ::fsync(file_.number()) != 0) return false;
  return (named_ ? rename_to(target) : link_as(path_, folder_, target)) && sync_folder(folder_);
}

bool temporary_file::rename_to(const std::string& target) {
  if (!file_.close() || ::rename(path_.c_str(), target.c_str()) != 0) return false;
  named_ = false;
  remove_when_memory_ends(nullptr);
  return true;
}

}  // namespace tivex_program
