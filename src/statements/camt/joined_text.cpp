#include "statements/camt/joined_text.h"

#include <cstdint>
#include <cstring>

namespace tivex {

namespace {

// Lowest byte first; as many as the shortest end tag leaves, enough for a terabyte.
constexpr std::size_t distance_length = 5;

void write_distance(char* at, std::ptrdiff_t distance) {
  auto left = static_cast<std::uint64_t>(distance);
  for (std::size_t place = 0; place < distance_length; ++place, left >>= 8) {
    at[place] = static_cast<char>(left & 0xFFU);
  }
}

std::ptrdiff_t read_distance(const char* at) {
  std::uint64_t distance = 0;
  for (std::size_t place = distance_length; place-- != 0;) {
    distance = distance << 8 | static_cast<unsigned char>(at[place]);
  }
  return static_cast<std::ptrdiff_t>(distance);
}

}  // namespace

// The list's last text is where the next distance is written.
void add_piece(text_list& list, char* text, char* text_end) {
  if (list.first == nullptr) {
    list.first = text;
  } else {
    write_distance(list.last, text - list.last);
  }
  list.last = text_end + 1;
}

joined_text& joined_text::add(char* text) {
  if (text != nullptr) parts_[count_++] = {text, text + std::strlen(text) + 1};
  return *this;
}

joined_text& joined_text::add(const text_list& list) {
  if (list.first != nullptr) parts_[count_++] = list;
  return *this;
}

char* joined_text::next_of(const text_list& part, char* text) {
  char* const behind = text + std::strlen(text) + 1;
  return behind == part.last ? nullptr : behind + read_distance(behind);
}

bool joined_text::finish(char*& text) {
  text = nullptr;
  if (count_ == 0) return true;
  text = parts_[0].first;
  if (count_ == 1 && next_of(parts_[0], text) == nullptr) return true;
  std::size_t size = 0;
  const auto visit = [this](auto visitor) {
    for (std::size_t part = 0; part < count_; ++part) {
      for (char* at = parts_[part].first; at != nullptr; at = next_of(parts_[part], at)) {
        visitor(at, std::strlen(at));
      }
    }
  };
  visit([&size](const char*, std::size_t length) { size += length + 1; });
  text = records_.make_text(size);
  if (text == nullptr) return false;
  char* to = text;
  visit([&to, this](const char* piece, std::size_t length) {
    std::memcpy(to, piece, length);
    to[length] = separator_;
    to += length + 1;
  });
  to[-1] = '\0';
  return true;
}

}  // namespace tivex
