#include "statements/file_kind.h"

#include <algorithm>

#include "files/ascii_case.h"
#include "files/utf8.h"

namespace tivex_program {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view blanks = " \t\r\n";

struct signature {
  std::string_view start;
  const char* kind;
};

constexpr signature signatures[] = {
    {"%PDF-", "a PDF document"},
    {"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1",
     "a spreadsheet or document of an older Office (.xls, .doc)"},
    {"PK\x03\x04", "a ZIP archive"},
    {"PK\x05\x06", "a ZIP archive"},
    {"\x1F\x8B", "a file compressed by gzip"},
    {"BZh", "a file compressed by bzip2"},
    {"\xFD\x37zXZ", "a file compressed by xz"},
    {"7z\xBC\xAF\x27\x1C", "a 7z archive"},
    {"Rar!\x1A\x07", "a RAR archive"},
    {"\xFF\xFE", "a text in UTF-16"},
    {"\xFE\xFF", "a text in UTF-16"},
    {"\x89PNG", "an image"},
    {"\xFF\xD8\xFF", "an image"},
    {"{\\rtf", "an RTF document"},
    {"OFXHEADER:", "an OFX file"},
    {"!Type:", "a QIF file"},
    {"-----BEGIN ", "a PEM file"},
};

constexpr std::string_view html_starts[] = {"<!doctype html", "<html"};

std::string_view without_mark(std::string_view text) {
  if (text.starts_with(byte_order_mark)) text.remove_prefix(byte_order_mark.size());
  return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

// What follows the end of a part, empty when there is no end.
std::string_view behind(std::string_view text, std::string_view end) {
  const std::size_t at = text.find(end);
  return at == std::string_view::npos ? ""sv : text.substr(at + end.size());
}

// The tag of the root element from its name on, empty when there is none.
std::string_view root_tag(std::string_view text) {
  while (text.starts_with('<')) {
    if (text.starts_with("<!--")) {
      text = behind(text, "-->");
    } else if (text.starts_with("<?") || text.starts_with("<!")) {
      text = behind(text, ">");
    } else {
      return text.substr(1, text.find('>') - 1);
    }
    text = text.substr(std::min(text.find_first_not_of(blanks), text.size()));
  }
  return {};
}

// A message of ISO 20022 is named by the end of its namespace.
std::string message_of(std::string_view root) {
  constexpr std::string_view space = "urn:iso:std:iso:20022:tech:xsd:";
  const std::string_view rest = behind(root, space);
  return std::string(rest.substr(0, rest.find_first_of("\"'")));
}

std::string kind_of_xml(std::string_view text) {
  const std::string_view root = root_tag(text);
  if (const std::string message = message_of(root); !message.empty()) {
    return "a " + message + " document";
  }
  const std::string name(root.substr(0, root.find_first_of(" \t\r\n/>")));
  return name.empty() ? "an XML document" : "an XML document of the element '" + name + "'";
}

bool is_json(std::string_view text) {
  if (!text.starts_with('{') && !text.starts_with('[')) return false;
  const std::string_view opened = text.substr(0, 1);
  text.remove_prefix(1);
  text = text.substr(std::min(text.find_first_not_of(blanks), text.size()));
  return text.starts_with('"') || text.starts_with('{') || (opened == "[" && text.starts_with(']'));
}

// Two delimiters in the first line, and nothing that is no text.
bool is_csv(std::string_view text) {
  const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
  const bool plain = std::ranges::none_of(
      line, [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\t'; });
  return plain && std::ranges::any_of(",;\t"sv, [line](char delimiter) {
           return std::ranges::count(line, delimiter) >= 2;
         });
}

}  // namespace

bool begins_as_xml(std::string_view head) { return without_mark(head).starts_with('<'); }

bool is_html(std::string_view head) {
  const std::string_view text = without_mark(head);
  return std::ranges::any_of(html_starts, [text](std::string_view start) {
    return same_but_for_case(text.substr(0, start.size()), start);
  });
}

std::string kind_of_file(std::string_view head) {
  for (const signature& each : signatures) {
    if (head.starts_with(each.start)) return each.kind;
  }
  const std::string_view text = without_mark(head);
  if (is_html(head)) return "an HTML page";
  if (text.starts_with('<')) return kind_of_xml(text);
  if (is_json(text)) return "a JSON text";
  if (is_csv(text)) return "a CSV file";
  return {};
}

}  // namespace tivex_program
