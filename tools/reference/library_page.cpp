#include "library_page.h"

#include <sstream>
#include <string_view>
#include <vector>

#include "manual_text.h"

namespace tivex_reference {

namespace {

using texts = std::vector<std::string>;

// The header as comments for the reference and the declarations behind them.
struct item {
  texts comment;  // lines without their marks
  std::string declaration;
};

std::string without_marks(std::string line) {
  for (const std::string_view mark : {"/**", " */", " *", "*/"}) {
    if (line.starts_with(mark)) line.erase(0, mark.size());
  }
  if (const std::size_t end = line.find("*/"); end != std::string::npos) line.erase(end);
  line.erase(0, std::min(line.find_first_not_of(' '), line.size()));
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

std::vector<item> read_items(const std::string& header) {
  std::vector<item> items;
  bool in_comment = false;
  std::istringstream lines(header);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("/**")) {
      items.emplace_back();
      in_comment = true;
    }
    if (in_comment) {
      items.back().comment.push_back(without_marks(line));
      in_comment = line.find("*/") == std::string::npos;
    } else if (!items.empty()) {
      items.back().declaration += (line.empty() ? "" : line + '\n');
    }
  }
  return items;
}

// The lines up to the first that is empty or begins with a command of Doxygen's.
std::string first_paragraph(const item& of) {
  std::string text;
  for (const std::string& line : of.comment) {
    if (line.starts_with('@') && text.empty()) continue;
    if (line.starts_with('@') || (line.empty() && !text.empty())) break;
    if (!line.empty()) text += (text.empty() ? "" : " ") + line;
  }
  return text;
}

// What follows a command of Doxygen's in the comment.
std::string told_by(const item& of, std::string_view doxygen_command) {
  for (const std::string& line : of.comment) {
    if (line.starts_with(doxygen_command)) return line.substr(doxygen_command.size());
  }
  return {};
}

// The declaration of a function or variable, without the mark of what is exported.
std::string prototype(const item& of) {
  constexpr std::string_view mark = "TIVEX_API ";
  const std::string declaration = of.declaration.substr(0, of.declaration.find(';') + 1);
  const std::size_t at = declaration.find(mark);
  if (at == std::string::npos || declaration.find('#') != std::string::npos) return {};
  std::string text = declaration;
  text.erase(at, mark.size());
  return text;
}

// The paragraphs and lists of the head.
std::string head_text(const item& head) {
  std::string text;
  bool paragraph_ends = false;  // the first one follows the heading
  for (const std::string& line : head.comment) {
    if (line.starts_with('@')) continue;
    if (line.empty()) {
      paragraph_ends = !text.empty();
      continue;
    }
    const bool point = line.starts_with("- ");
    if (point) {
      text += ".IP \\(bu 3\n";
    } else if (paragraph_ends) {
      text += ".PP\n";
    }
    text += manual_text(point ? line.substr(2) : line) + '\n';
    paragraph_ends = false;
  }
  return text;
}

std::string item_text(const item& of) {
  const std::string group = told_by(of, "@defgroup ");
  if (!group.empty()) {
    return ".SS " + manual_text(group.substr(group.find(' ') + 1)) + '\n' +
           manual_text(first_paragraph(of)) + '\n';
  }
  const std::string declared = prototype(of);
  if (declared.empty()) return {};
  return ".PP\n.nf\n\\fB" + manual_text(declared) + "\\fR\n.fi\n.RS 4\n" +
         manual_text(first_paragraph(of)) + "\n.RE\n";
}

}  // namespace

reference_file library_page(const std::string& header) {
  const std::vector<item> items = read_items(header);
  std::string text = page_head("include/tivex.h", "libtivex", 3, "Library Functions") +
                     section("NAME") + "libtivex \\- payments in the Single Euro Payments Area\n" +
                     section("SYNOPSIS") + ".nf\n\\fB#include <tivex.h>\\fR\n.fi\n.PP\n" +
                     bold("cc") + ' ' + italic("FILE.c") + ' ' + bold("-ltivex") + '\n' +
                     section("DESCRIPTION") + head_text(items.front()) + section("FUNCTIONS");
  for (const item& each : items) text += item_text(each);
  text +=
      section("NOTES") +
      manual_text("The header tells the rest: limits, results and error texts of every function.") +
      '\n' + section("SEE ALSO") + ".BR tivex (1)\n";
  return {"libtivex.3", text};
}

}  // namespace tivex_reference
