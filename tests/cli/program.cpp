#include "program.h"

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

const std::string commands =
    "tivex() { \"${TIVEX_PROGRAM:-" TIVEX_PROGRAM "}\" \"$@\"; }; examples='" TIVEX_SOURCE_DIR
    "/examples'\n"
    "with_account() { command=$1; shift; "
    "  tivex $command --name 'Beispiel GmbH' --iban DE89370400440532013000 --today 2026-11-23 "
    "    --without-warning old-directory \"$@\"; }\n"
    "transfer() { with_account credit-transfer --bic COBADEFFXXX --date 2026-11-27 \"$@\"; }\n"
    "debit() { with_account direct-debit --bic COBADEFFXXX --creditor-id DE98ZZZ09999999999 "
    "  --date 2026-12-01 \"$@\"; }\n";

}  // namespace

program_result run(const std::string& line, const std::string& input,
                   const scratch_directory& directory) {
  const scratch_directory streams;
  std::ofstream(streams / "input", std::ios::binary) << input;
  const std::string command = commands + "cd " + directory / "" + "; exec <" + streams / "input" +
                              " >" + streams / "output" + " 2>" + streams / "errors" + "\n" + line;
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read_file(streams / "output"),
          read_file(streams / "errors")};
}

std::string replaced(std::string text, const std::string& part, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += by.size())
    text.replace(at, part.size(), by);
  return text;
}

std::string with_ibans(const std::string& text) {
  return replaced(text, "@", "AT611904300234573201");
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
