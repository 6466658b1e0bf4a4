#include "platform/windows_calls.h"

#define WIN32_LEAN_AND_MEAN
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace tivex_program {
namespace {

struct error_pair {
  DWORD system;
  int c;
};

constexpr error_pair errors[] = {
    {ERROR_FILE_NOT_FOUND, ENOENT},    {ERROR_PATH_NOT_FOUND, ENOENT},
    {ERROR_BAD_NETPATH, ENOENT},       {ERROR_BAD_NET_NAME, ENOENT},
    {ERROR_INVALID_NAME, ENOENT},      {ERROR_BAD_PATHNAME, ENOENT},
    {ERROR_INVALID_DRIVE, ENOENT},     {ERROR_ACCESS_DENIED, EACCES},
    {ERROR_SHARING_VIOLATION, EACCES}, {ERROR_LOCK_VIOLATION, EACCES},
    {ERROR_WRITE_PROTECT, EROFS},      {ERROR_FILE_EXISTS, EEXIST},
    {ERROR_ALREADY_EXISTS, EEXIST},    {ERROR_DISK_FULL, ENOSPC},
    {ERROR_HANDLE_DISK_FULL, ENOSPC},  {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
    {ERROR_NOT_ENOUGH_MEMORY, ENOMEM}, {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
    {ERROR_DIRECTORY, ENOTDIR},
};

}  // namespace

std::wstring wide(std::string_view text) {
  const int size = static_cast<int>(text.size());
  const int needed = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  std::wstring result(static_cast<std::size_t>(needed), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(), needed);
  return result;
}

std::string narrow(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const int needed =
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(needed), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(), needed, nullptr, nullptr);
  return result;
}

bool is_console(int number) {
  DWORD mode = 0;
  return ::GetConsoleMode(reinterpret_cast<HANDLE>(::_get_osfhandle(number)), &mode) != 0;
}

bool set_errno() {
  const DWORD reason = ::GetLastError();
  const auto* const found = std::find_if(std::begin(errors), std::end(errors),
                                         [&](const error_pair& e) { return e.system == reason; });
  errno = found == std::end(errors) ? EIO : found->c;
  return false;
}

}  // namespace tivex_program
