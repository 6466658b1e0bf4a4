#include "output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "descriptor.h"

namespace tivex_program {
namespace {

std::string reason() { return std::strerror(errno); }

bool write_all(int file, std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(file, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

// Returns what the links lead to, which need not exist.
std::string follow_links(std::string path) {
  char target[PATH_MAX];
  // As many as the system follows; the last one then fails to open.
  for (int i = 0; i < 40; ++i) {
    const ssize_t length = ::readlink(path.c_str(), target, sizeof target);
    if (length <= 0 || length == sizeof target) break;
    const std::string next(target, static_cast<std::size_t>(length));
    const std::size_t slash = path.rfind('/');
    const bool beside = next[0] != '/' && slash != std::string::npos;
    path.resize(beside ? slash + 1 : 0);
    path += next;
  }
  return path;
}

mode_t new_file_mode() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

// A file beside the target that is removed unless it has taken its place.
class temporary_file {
 public:
  explicit temporary_file(const std::string& target)
      : name_(target.substr(0, target.rfind('/') + 1) + ".tivex-XXXXXX") {
    file_ = descriptor(::mkostemp(name_.data(), O_CLOEXEC));
    exists_ = static_cast<bool>(file_);
  }
  ~temporary_file() {
    if (exists_) ::unlink(name_.c_str());
  }
  temporary_file(const temporary_file&) = delete;
  temporary_file& operator=(const temporary_file&) = delete;

  bool write(std::string_view text, mode_t mode) {
    return exists_ && write_all(file_.number(), text) && ::fchmod(file_.number(), mode) == 0 &&
           ::fsync(file_.number()) == 0 && file_.close();
  }
  bool take_place_of(const std::string& target) {
    if (::rename(name_.c_str(), target.c_str()) != 0) return false;
    exists_ = false;
    return true;
  }

 private:
  std::string name_;
  descriptor file_;
  bool exists_ = false;
};

// Holds back the signals that would end the program and leave the temporary
// file behind; they arrive when the file is complete.
class signals_held {
 public:
  signals_held() {
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) sigaddset(&held, signal);
    sigprocmask(SIG_BLOCK, &held, &before_);
  }
  ~signals_held() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  signals_held(const signals_held&) = delete;
  signals_held& operator=(const signals_held&) = delete;

 private:
  sigset_t before_{};
};

std::string write_directly(const std::string& path, std::string_view text) {
  descriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
  return file && write_all(file.number(), text) && file.close() ? "" : reason();
}

}  // namespace

std::string write_standard_output(std::string_view text) {
  descriptor copy(::dup(STDOUT_FILENO));
  return copy && write_all(copy.number(), text) && copy.close() ? "" : reason();
}

std::string replace_file(const std::string& path, std::string_view text) {
  struct stat status {};
  const bool exists = ::stat(path.c_str(), &status) == 0;
  if (!exists && errno != ENOENT) return reason();
  if (exists && !S_ISREG(status.st_mode)) return write_directly(path, text);

  const std::string target = follow_links(path);
  // Renaming would replace a file that its owner has closed to writing.
  if (exists && ::access(target.c_str(), W_OK) != 0) return reason();
  const signals_held held;
  temporary_file temporary(target);
  const mode_t mode = exists ? status.st_mode & 07777 : new_file_mode();
  return temporary.write(text, mode) && temporary.take_place_of(target) ? "" : reason();
}

bool same_file(const std::string& left, const std::string& right) {
  std::error_code ignored;
  return std::filesystem::equivalent(left, right, ignored);
}

}  // namespace tivex_program
