#include "manual_pages.h"

#include <algorithm>
#include <cctype>

#include "manual_text.h"
#include "page_notes.h"

namespace tivex_reference {

namespace {

constexpr const char* made_from = "the program's options";

std::string page_name(const command& of) {
  std::string name = of.path;
  std::replace(name.begin(), name.end(), ' ', '-');
  return name;
}

// A description as part of a sentence: "Find the bank", but not "IBANs".
std::string in_sentence(std::string text) {
  if (text.size() > 1 && std::islower(static_cast<unsigned char>(text[1])) != 0) {
    text[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[0])));
  }
  return text;
}

std::string value_of(const parameter& of) {
  std::string text = italic(of.value);
  // "ACCOUNT or FILE" stands for two.
  const std::size_t at = text.find(" or ");
  return at == std::string::npos ? text : text.replace(at, 4, "\\fR | \\fI");
}

std::string head(const std::string& name, const std::string& description) {
  return page_head(made_from, name, 1, "User Commands") + section("NAME") + manual_text(name) +
         " \\- " + manual_text(in_sentence(description)) + '\n';
}

// What is typed, with brackets around what may be left out.
std::string synopsis(const command& of) {
  std::string line = bold(of.path);
  const auto add = [&line](const std::string& word, bool required, bool repeated) {
    line += (required ? " " : " [") + word + (repeated ? " ..." : "") + (required ? "" : "]");
  };
  for (const parameter& option : of.options) {
    if (option.long_name == "--help") continue;
    const std::string value = option.value.empty() ? "" : ' ' + value_of(option);
    add(bold(option.names().front()) + value, option.required, false);
  }
  for (const parameter& argument : of.arguments) {
    add(value_of(argument), argument.required, argument.repeated);
  }
  if (!of.commands.empty()) line += ' ' + italic("COMMAND") + " ...";
  return ".HP 4\n" + line + '\n';
}

std::string joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

std::string parameter_entry(const parameter& of) {
  std::string subject;
  for (const std::string& name : of.names()) subject += (subject.empty() ? "" : ", ") + bold(name);
  if (!of.value.empty()) subject += (subject.empty() ? "" : " ") + value_of(of);
  std::string text = of.description + '.';
  if (!of.values.empty() && text.find(of.values.front()) == std::string::npos) {
    text += " One of " + joined(of.values) + '.';
  }
  if (!of.fallback.empty()) text += " Default: " + of.fallback + '.';
  if (of.required) text += " Required.";
  if (!of.needs.empty()) text += " Together with " + joined(of.needs) + '.';
  if (!of.excludes.empty()) text += " Not with " + joined(of.excludes) + '.';
  return entry(subject, text);
}

std::string parameters(const command& of, const char* heading) {
  std::string text;
  for (const parameter& argument : of.arguments) text += parameter_entry(argument);
  for (const parameter& option : of.options) text += parameter_entry(option);
  return text.empty() ? text : heading + text;
}

// The footer of a command's help: notes, and from a line "Example:" on examples.
std::string footer(const command& of, const char* notes_heading, const char* examples_heading) {
  std::size_t at = of.footer.find("Example");
  if (at != 0 && at != std::string::npos) at = of.footer.find("\nExample");
  at = std::min(at, of.footer.size());
  std::string before = of.footer.substr(0, at);
  while (before.ends_with('\n')) before.pop_back();
  std::string examples = of.footer.substr(at);
  examples.erase(0, std::min(examples.find(":\n") + 2, examples.size()));
  return (before.empty() ? "" : notes_heading + as_it_stands(before)) +
         (examples.empty() ? "" : examples_heading + as_it_stands(examples));
}

std::string see_also(const std::vector<std::string>& pages) {
  std::string text = section("SEE ALSO");
  for (const std::string& page : pages) {
    const std::size_t number = page.find('(');
    text += ".BR " + manual_text(page.substr(0, number)) + ' ' + page.substr(number) +
            (page == pages.back() ? "\n" : " ,\n");
  }
  return text;
}

reference_file command_page(const command& of, const command& program) {
  return {page_name(of) + ".1",
          head(page_name(of), of.description) + section("SYNOPSIS") + synopsis(of) +
              section("DESCRIPTION") + manual_text(of.description) + ".\n" +
              parameters(of, section("OPTIONS").c_str()) +
              footer(of, section("NOTES").c_str(), section("EXAMPLES").c_str()) +
              exit_statuses(of) + environment(of) + files(of) +
              see_also({program.name + "(1)", "libtivex(3)"})};
}

}  // namespace

std::vector<reference_file> manual_pages(const command& program) {
  std::vector<reference_file> pages;
  std::vector<std::string> others;
  std::string list;
  for (const command* const each : working_commands(program)) {
    pages.push_back(command_page(*each, program));
    others.push_back(page_name(*each) + "(1)");
    list += entry(bold(each->path), each->description + ". See " + others.back() + '.');
  }
  others.emplace_back("libtivex(3)");
  pages.push_back(
      {program.name + ".1",
       head(program.name, program.description) + section("SYNOPSIS") + synopsis(program) +
           section("DESCRIPTION") + about(program) + section("COMMANDS") + list +
           parameters(program, section("OPTIONS").c_str()) +
           footer(program, section("NOTES").c_str(), section("EXAMPLES").c_str()) +
           exit_statuses(program) + environment(program) + files(program) + see_also(others)});
  return pages;
}

reference_file manual_page(const command& program) {
  std::string synopses;
  std::string list;
  for (const command* const each : working_commands(program)) {
    synopses += synopsis(*each);
    list += ".SS " + manual_text(each->path) + '\n' + manual_text(each->description) + ".\n" +
            parameters(*each, "") + footer(*each, ".PP\n", ".PP\nExample:\n");
  }
  return {program.name + ".1", head(program.name, program.description) + section("SYNOPSIS") +
                                   synopses + section("DESCRIPTION") +
                                   manual_text(program.description) + ".\n" + section("COMMANDS") +
                                   list + exit_statuses(program) + environment(program) +
                                   files(program) + see_also({"tivex(1)", "libtivex(3)"})};
}

}  // namespace tivex_reference
