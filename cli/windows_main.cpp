#define WIN32_LEAN_AND_MEAN
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "platform/windows_calls.h"
#include "program.h"

namespace tivex_program {
namespace {

// Makes the console take and give UTF-8; the shell gets it back as it was.
class utf8_console {
 public:
  utf8_console() {
    ::SetConsoleCP(CP_UTF8);
    ::SetConsoleOutputCP(CP_UTF8);
  }
  ~utf8_console() {
    ::SetConsoleCP(input_);
    ::SetConsoleOutputCP(output_);
  }
  utf8_console(const utf8_console&) = delete;
  utf8_console& operator=(const utf8_console&) = delete;

 private:
  UINT input_ = ::GetConsoleCP();
  UINT output_ = ::GetConsoleOutputCP();
};

int run_in_utf8(int argument_count, wchar_t** arguments) {
  const utf8_console console;
  // The same bytes on every system: line ends are not translated.
  for (const int stream : {0, 1, 2}) ::_setmode(stream, _O_BINARY);
  // Unbuffered, a letter of two bytes would come to the console in two parts.
  std::setvbuf(stdout, nullptr, _IOFBF, BUFSIZ);

  std::vector<std::string> texts;
  for (int i = 0; i < argument_count; ++i) texts.push_back(narrow(arguments[i]));
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  const int status = run_program(argument_count, pointers.data());
  std::fflush(stdout);
  return status;
}

}  // namespace
}  // namespace tivex_program

extern "C" int wmain(int argument_count, wchar_t** arguments) {
  return tivex_program::run_in_utf8(argument_count, arguments);
}
