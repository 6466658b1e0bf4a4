#define WIN32_LEAN_AND_MEAN
#include <io.h>
#include <windows.h>

#include <array>
#include <cerrno>
#include <cstdlib>

#include "platform/exit_status.h"
#include "platform/process.h"
#include "platform/windows_calls.h"

namespace tivex_program {
namespace {

constexpr std::size_t longest_path = 32768;

}  // namespace

bool errors_go_to_terminal() { return is_console(2); }

// A console takes them only when it is told to, and would stay so after the program.
bool takes_colours(int) { return false; }

std::string temporary_folder() {
  std::array<wchar_t, longest_path> folder{};
  const DWORD length = ::GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
  return narrow({folder.data(), length});
}

void remove_file(const char* name) {
  // Where memory is short there may be no more stack either.
  static std::array<wchar_t, longest_path> path;
  const int size = static_cast<int>(path.size());
  if (::MultiByteToWideChar(CP_UTF8, 0, name, -1, path.data(), size) > 0) {
    ::DeleteFileW(path.data());
  }
}

void end_at_once(std::string_view last_words, int exit_status) {
  [[maybe_unused]] const int written =
      ::_write(2, last_words.data(), static_cast<unsigned>(last_words.size()));
  ::_exit(exit_status);
}

void end_when_reader_has_gone() {
  // The system has several words for it, of which the C library knows one only.
  const auto output = reinterpret_cast<HANDLE>(::_get_osfhandle(1));
  const bool refused_by_pipe = errno == EINVAL && ::GetFileType(output) == FILE_TYPE_PIPE;
  if (errno == EPIPE || refused_by_pipe) ::_exit(exit_failure);
}

void wipe(void* memory, std::size_t size) { ::SecureZeroMemory(memory, size); }

}  // namespace tivex_program
