#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "platform/descriptor.h"
#include "platform/output_file.h"
#include "platform/temporary_file.h"

namespace tivex_program {
namespace {

std::string reason() { return std::strerror(errno); }

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

std::string write_directly(const std::string& path, std::string_view text) {
  descriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
  return file && file.write_all(text) && file.close() ? "" : reason();
}

}  // namespace

std::string replace_file(const std::string& path, std::string_view text) {
  struct stat status {};
  const bool exists = ::stat(path.c_str(), &status) == 0;
  if (!exists && errno != ENOENT) return reason();
  if (exists && !S_ISREG(status.st_mode)) return write_directly(path, text);

  const std::string target = follow_links(path);
  // Renaming would replace a file that its owner has closed to writing.
  if (exists && ::access(target.c_str(), W_OK) != 0) return reason();
  temporary_file file(target.substr(0, target.rfind('/') + 1), access_meanwhile::own);
  return file.write(text) && file.take_name(target) ? "" : reason();
}

bool is_file_to_read(const std::string& output, const std::string& input) {
  struct stat written {};
  struct stat read {};
  if (output == "-" || ::stat(output.c_str(), &written) != 0) return false;
  const int result = input == "-" ? ::fstat(STDIN_FILENO, &read) : ::stat(input.c_str(), &read);
  return result == 0 && !S_ISCHR(read.st_mode) && read.st_dev == written.st_dev &&
         read.st_ino == written.st_ino;
}

}  // namespace tivex_program
