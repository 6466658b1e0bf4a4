#include "files/folded_name.h"

#include <cstddef>

#include "files/ascii_case.h"
#include "files/utf8.h"

namespace tivex_program {
namespace {

struct accented {
  std::string_view characters;  // one after the other, of two bytes each
  std::string_view plain;
};
constexpr accented accented_letters[] = {
    {"ÀÁÂÃÄÅàáâãäåĄą", "a"},
    {"ÇçĆćČč", "c"},
    {"Ďď", "d"},
    {"ÈÉÊËèéêëĘęĚě", "e"},
    {"ÌÍÎÏìíîï", "i"},
    {"Łł", "l"},
    {"ÑñŃńŇň", "n"},
    {"ÒÓÔÕÖØòóôõöøŐő", "o"},
    {"Řř", "r"},
    {"ŚśŠš", "s"},
    {"ß", "ss"},
    {"Ťť", "t"},
    {"ÙÚÛÜùúûüŮůŰű", "u"},
    {"ÝýŸÿ", "y"},
    {"ŹźŻżŽž", "z"},
    {"Ææ", "a"},
    {"Œœ", "o"},
};

std::string_view plain_letter(std::string_view character) {
  for (const accented& each : accented_letters) {
    for (std::size_t at = 0; at < each.characters.size(); at += 2) {
      if (each.characters.substr(at, 2) == character) return each.plain;
    }
  }
  return {};
}

bool is_letter_or_digit(char c) { return ('a' <= c && c <= 'z') || ('0' <= c && c <= '9'); }

}  // namespace

std::string folded_name(std::string_view name) {
  std::string folded;
  while (!name.empty()) {
    std::size_t length = utf8_character_length(name);
    if (length == 0) length = 1;
    const char small = lower(name.front());
    if (length == 2) {
      folded += plain_letter(name.substr(0, length));
    } else if (is_letter_or_digit(small)) {
      // An umlaut may be written with an e.
      const bool of_umlaut = small == 'e' && !folded.empty() &&
                             std::string_view("aou").find(folded.back()) != std::string_view::npos;
      if (!of_umlaut) folded += small;
    }
    name.remove_prefix(length);
  }
  return folded;
}

}  // namespace tivex_program
