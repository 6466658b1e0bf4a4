#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "platform/descriptor.h"
#include "platform/windows_calls.h"

namespace tivex_program {
namespace {

bool is_folder(const std::wstring& path) {
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

descriptor::~descriptor() {
  if (number_ >= 0) ::_close(number_);
}

descriptor descriptor::to_read(const std::string& name) {
  const std::wstring path = wide(name);
  descriptor file(::_wopen(path.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT));
  // A folder is refused as if it were closed to the user.
  if (!file && errno == EACCES && is_folder(path)) {
    errno = EISDIR;
  }
  return file;
}

descriptor descriptor::of_standard_input() { return descriptor(::_dup(0)); }

descriptor descriptor::of_standard_output() { return descriptor(::_dup(1)); }

std::ptrdiff_t descriptor::read(char* buffer, std::size_t size) const {
  constexpr std::size_t most_at_once = std::size_t{1} << 30;
  // Who types the next line wants to see what became of the last one.
  if (is_console(number_)) std::fflush(stdout);
  return ::_read(number_, buffer, static_cast<unsigned>(std::min(size, most_at_once)));
}

bool descriptor::write_all(std::string_view text) const {
  // Consoles and pipes do not take everything at once.
  constexpr std::size_t most_at_once = std::size_t{1} << 15;
  while (!text.empty()) {
    const auto part = static_cast<unsigned>(std::min(text.size(), most_at_once));
    const int count = ::_write(number_, text.data(), part);
    if (count < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool descriptor::find_size(std::optional<std::uint64_t>& size) const {
  struct _stat64 status {};
  if (::_fstat64(number_, &status) != 0) return false;
  if ((status.st_mode & _S_IFMT) == _S_IFREG) size = static_cast<std::uint64_t>(status.st_size);
  return true;
}

std::int64_t descriptor::position() const { return ::_lseeki64(number_, 0, SEEK_CUR); }

bool descriptor::go_to(std::int64_t position) const {
  return ::_lseeki64(number_, position, SEEK_SET) >= 0;
}

bool descriptor::close() { return ::_close(std::exchange(number_, -1)) == 0; }

}  // namespace tivex_program
