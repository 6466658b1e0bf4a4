#include "files/utf8_scan.h"

#include <algorithm>

#include "files/utf8.h"

namespace tivex_program {
namespace {

constexpr std::size_t longest_character = 4;

// The length of the bytes at the start that are whole characters.
std::size_t sound_length(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    // Most characters are ASCII.
    if (static_cast<unsigned char>(text[at]) < 0x80) {
      ++at;
      continue;
    }
    const std::size_t length = utf8_character_length(text.substr(at, longest_character));
    if (length == 0) break;
    at += length;
  }
  return at;
}

}  // namespace

void utf8_scan::take(std::string_view part) {
  if (has_nul_) return;
  const std::size_t end = part.find('\0');
  has_nul_ = end != std::string_view::npos;
  part = part.substr(0, end);
  length_ += part.size();
  while (sound_ && !open_.empty() && !part.empty()) {
    open_ += part.front();
    part.remove_prefix(1);
    if (utf8_character_length(open_) > 0) {
      open_.clear();
    } else {
      sound_ = open_.size() < longest_character;
    }
  }
  if (!sound_ || !open_.empty()) return;
  part.remove_prefix(sound_length(part));
  sound_ = part.size() < longest_character;
  open_ = sound_ ? std::string(part) : std::string();
}

}  // namespace tivex_program
