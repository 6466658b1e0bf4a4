#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include "platform/exit_status.h"
#include "platform/process.h"

namespace tivex_program {

bool errors_go_to_terminal() { return ::isatty(STDERR_FILENO) == 1; }

bool takes_colours(int stream) {
  const char* const kind = std::getenv("TERM");
  return kind != nullptr && std::string_view(kind) != "dumb" && ::isatty(stream) == 1;
}

std::string temporary_folder() {
  const char* const directory = std::getenv("TMPDIR");
  const bool usual = directory == nullptr || *directory == '\0';
  return std::string(usual ? "/tmp" : directory) + '/';
}

void remove_file(const char* name) { ::unlink(name); }

void end_at_once(std::string_view last_words, int exit_status) {
  [[maybe_unused]] const ssize_t written =
      ::write(STDERR_FILENO, last_words.data(), last_words.size());
  ::_exit(exit_status);
}

void end_when_reader_has_gone() {
  if (errno != EPIPE) return;
  // Who waits for the program sees by what it ended.
  std::signal(SIGPIPE, SIG_DFL);
  std::raise(SIGPIPE);
  ::_exit(exit_failure);
}

void wipe(void* memory, std::size_t size) { explicit_bzero(memory, size); }

}  // namespace tivex_program
