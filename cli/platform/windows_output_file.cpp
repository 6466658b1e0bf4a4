#define WIN32_LEAN_AND_MEAN
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "platform/descriptor.h"
#include "platform/output_file.h"
#include "platform/temporary_file.h"
#include "platform/windows_calls.h"

namespace tivex_program {
namespace {

struct handle_closer {
  void operator()(HANDLE handle) const { ::CloseHandle(handle); }
};
using file_handle = std::unique_ptr<void, handle_closer>;

std::string reason() { return std::strerror(errno); }

// Opens a file or folder to ask about it; null, with the reason in errno, when it cannot.
file_handle open_to_ask(const std::string& path) {
  const HANDLE handle = ::CreateFileW(wide(path).c_str(), FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle != INVALID_HANDLE_VALUE) return file_handle(handle);
  set_errno();
  return nullptr;
}

// Returns what the links lead to.
std::string follow_links(const file_handle& file, const std::string& path) {
  std::wstring target(32768, L'\0');
  const DWORD length = ::GetFinalPathNameByHandleW(
      file.get(), target.data(), static_cast<DWORD>(target.size()), FILE_NAME_NORMALIZED);
  return length == 0 || length >= target.size() ? path : narrow({target.data(), length});
}

std::string write_directly(const std::string& path, std::string_view text) {
  descriptor file(::_wopen(wide(path).c_str(), _O_WRONLY | _O_BINARY | _O_NOINHERIT));
  return file && file.write_all(text) && file.close() ? "" : reason();
}

bool same_file(HANDLE a, HANDLE b) {
  BY_HANDLE_FILE_INFORMATION of_a;
  BY_HANDLE_FILE_INFORMATION of_b;
  return ::GetFileInformationByHandle(a, &of_a) != 0 &&
         ::GetFileInformationByHandle(b, &of_b) != 0 &&
         of_a.dwVolumeSerialNumber == of_b.dwVolumeSerialNumber &&
         of_a.nFileIndexHigh == of_b.nFileIndexHigh && of_a.nFileIndexLow == of_b.nFileIndexLow;
}

}  // namespace

std::string replace_file(const std::string& path, std::string_view text) {
  std::string target = path;
  if (const file_handle old = open_to_ask(path)) {
    if (::GetFileType(old.get()) != FILE_TYPE_DISK) return write_directly(path, text);
    const DWORD attributes = ::GetFileAttributesW(wide(path).c_str());
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::strerror(EISDIR);
    // Its owner has closed it to writing.
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) return std::strerror(EACCES);
    target = follow_links(old, path);
  } else if (errno != ENOENT) {
    return reason();
  }
  temporary_file file(target.substr(0, target.find_last_of("/\\:") + 1), access_meanwhile::own);
  return file.write(text) && file.take_name(target) ? "" : reason();
}

bool is_file_to_read(const std::string& output, const std::string& input) {
  const file_handle written = output == "-" ? nullptr : open_to_ask(output);
  if (!written) return false;
  if (input == "-") return same_file(written.get(), ::GetStdHandle(STD_INPUT_HANDLE));
  const file_handle read = open_to_ask(input);
  return read && same_file(written.get(), read.get());
}

}  // namespace tivex_program
