#define WIN32_LEAN_AND_MEAN
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <utility>

#include "platform/exhausted_memory.h"
#include "platform/process.h"
#include "platform/temporary_file.h"
#include "platform/windows_calls.h"

namespace tivex_program {
namespace {

std::string passing_name(const std::string& folder) {
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  return folder + ".tivex-" + std::to_string(::GetCurrentProcessId()) + '-' + std::to_string(now);
}

// Whether the system removes the file when it is closed, also by the end of the program.
// False where the file system cannot; the file is then removed by its name.
bool vanish_at_end(const descriptor& open, bool vanishes) {
  const auto file = reinterpret_cast<HANDLE>(::_get_osfhandle(open.number()));
  FILE_DISPOSITION_INFO disposition{};
  disposition.DeleteFile = vanishes ? TRUE : FALSE;
  return ::SetFileInformationByHandle(file, FileDispositionInfo, &disposition,
                                      sizeof disposition) != 0;
}

// A new file. Who may remove it closes it to others that read it.
descriptor make_file(const std::string& name, access_meanwhile access) {
  const bool own = access == access_meanwhile::own;
  const HANDLE file =
      ::CreateFileW(wide(name).c_str(), GENERIC_READ | GENERIC_WRITE | (own ? DELETE : 0),
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, CREATE_NEW,
                    FILE_ATTRIBUTE_NORMAL | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    set_errno();
    return {};
  }
  return descriptor(
      ::_open_osfhandle(reinterpret_cast<std::intptr_t>(file), _O_RDWR | _O_BINARY | _O_NOINHERIT));
}

}  // namespace

temporary_file::temporary_file(std::string folder, access_meanwhile access)
    : folder_(std::move(folder)) {
  held_.emplace();
  do {
    path_ = passing_name(folder_);
    file_ = make_file(path_, access);
  } while (!file_ && errno == EEXIST);
  named_ = static_cast<bool>(file_);
  if (!named_) return;
  remove_when_memory_ends(path_.c_str());
  if (access == access_meanwhile::own && vanish_at_end(file_, true)) held_.reset();
}

temporary_file::~temporary_file() {
  if (!named_) return;
  if (file_) file_.close();
  remove_file(path_.c_str());
  remove_when_memory_ends(nullptr);
}

bool temporary_file::write(std::string_view text) const { return file_ && file_.write_all(text); }

bool temporary_file::take_name(const std::string& target) {
  if (::_commit(file_.number()) != 0) return false;
  const signals_held held;
  vanish_at_end(file_, false);
  return rename_to(target);
}

bool temporary_file::rename_to(const std::string& target) {
  if (!file_.close()) return false;
  if (::MoveFileExW(wide(path_).c_str(), wide(target).c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
    return set_errno();
  }
  named_ = false;
  remove_when_memory_ends(nullptr);
  return true;
}

}  // namespace tivex_program
