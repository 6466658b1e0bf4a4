#include "program.h"

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

program_result run(const std::string& line, const std::string& input) {
  const scratch_directory directory;
  std::ofstream(directory / "input", std::ios::binary) << input;
  const std::string command = "tivex() { '" TIVEX_PROGRAM "' \"$@\"; }; exec <" +
                              directory / "input" + " >" + directory / "output" + " 2>" +
                              directory / "errors" + "; " + line;
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read_file(directory / "output"),
          read_file(directory / "errors")};
}

std::string with_ibans(std::string text) {
  for (std::size_t at = 0; (at = text.find('@', at)) != std::string::npos;) {
    text.replace(at, 1, "AT611904300234573201");
  }
  return text;
}

std::string read_file(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

scratch_directory::scratch_directory() {
  std::string name = std::filesystem::temp_directory_path() / "tivex-test-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) std::abort();
  path_ = name;
}
