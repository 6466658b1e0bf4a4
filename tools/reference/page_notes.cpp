#include "page_notes.h"

#include <algorithm>

#include "manual_text.h"

namespace tivex_reference {

namespace {

struct note {
  const char* holds_for;  // a program, one of its commands, or an option
  const char* subject;
  const char* text;
};

constexpr note programs[] = {
    {"tivex", "",
     "The program turns payments in CSV files into documents that banks take, checks IBANs and "
     "German account numbers, makes IBANs of them, finds the bank behind a code and prints bank "
     "statements. Each command has a page of its own."},
    {"tivex-edition", "",
     "The program imports publishers' lists of banks into tables of text, and makes of these "
     "tables the source of the directory that is compiled into libtivex. It is run in the folder "
     "of the source."},
};

constexpr note statuses[] = {
    {"tivex", "0", "What was asked for is done, and all that was to be checked is valid."},
    {"tivex", "1",
     "Something is invalid, cannot be made or is not in the directory, or a file cannot be "
     "read or written. A line on standard error, or the answer itself, names each fault."},
    {"tivex", "2",
     "The command line is wrong, or one of its values is. No file is read or written."},
    {"tivex-edition", "0", "The files are written."},
    {"tivex-edition", "1",
     "A fault stands in what was read, or a file cannot be read or written. Each is named on "
     "standard error."},
    {"tivex-edition", "2", "The command line is wrong. No file is read or written."},
};

constexpr note variables[] = {
    {"tivex", "NO_COLOR",
     "When it is set and not empty, nothing is coloured. Without it what goes to a terminal "
     "may be."},
    {"--message-id", "TZ",
     "Time zone of the date and time that a document gets where none is given."},
    {"tivex statement", "TMPDIR",
     "Folder of the copy that the library reads of a statement from standard input, a pipe or "
     "an archive (default: /tmp). It is removed at once."},
};

constexpr note written_files[] = {
    {"--output", "FILE",
     "The file of --output is replaced as a whole, or stays as it was when anything fails."},
    {"tivex-edition", "data/edition, data/iban_rules, data/purposes",
     "The facts, one table a file."},
    {"tivex-edition", "src/directory/data, src/de_iban/data, src/xml/data",
     "The library's tables."},
};

bool has_option(const command& of, const char* name) {
  return of.find_option(name) != nullptr ||
         std::ranges::any_of(of.commands,
                             [name](const command& each) { return has_option(each, name); });
}

bool holds(const note& about, const command& of) {
  const std::string_view subject = about.holds_for;
  if (subject.starts_with("--")) return has_option(of, about.holds_for);
  // A command's notes stand on the page of its program too.
  return of.path == subject || of.path.starts_with(std::string(subject) + ' ') ||
         subject.starts_with(of.path + ' ');
}

template <std::size_t count>
std::string notes(const char* title, const note (&all)[count], const command& of,
                  std::string (*subject)(std::string_view)) {
  std::string text;
  for (const note& each : all) {
    if (holds(each, of)) text += entry(subject(each.subject), each.text);
  }
  return text.empty() ? text : section(title) + text;
}

}  // namespace

std::string about(const command& program) {
  for (const note& each : programs) {
    if (program.name == each.holds_for) return manual_text(each.text) + '\n';
  }
  return manual_text(program.description) + ".\n";
}

std::string exit_statuses(const command& of) { return notes("EXIT STATUS", statuses, of, bold); }
std::string environment(const command& of) { return notes("ENVIRONMENT", variables, of, bold); }
std::string files(const command& of) { return notes("FILES", written_files, of, italic); }

}  // namespace tivex_reference
