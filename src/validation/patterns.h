// POSIX extended regular expressions for texts of fixed form, translated by the
// compiler: nothing is compiled, allocated or locked while the library runs, and the
// host's locale has no say.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tivex {

// Some of the characters of ASCII.
class character_class {
 public:
  constexpr void add(char first, char last) {
    for (int c = static_cast<unsigned char>(first); c <= static_cast<unsigned char>(last); ++c)
      bits_[place_of(c)] |= bit_of(c);
  }
  constexpr bool operator==(const character_class&) const = default;
  constexpr bool has(char c) const {
    const auto code = static_cast<unsigned char>(c);
    return code < 128 && (bits_[place_of(code)] & bit_of(code)) != 0;
  }

 private:
  static constexpr std::size_t place_of(int c) { return static_cast<std::size_t>(c) / 64; }
  static constexpr std::uint64_t bit_of(int c) { return std::uint64_t{1} << (c % 64); }

  std::array<std::uint64_t, 2> bits_ = {};
};

// So many characters in turn, each of the class.
struct character_run {
  character_class characters;
  std::uint8_t count = 0;
};

// What a pattern says: runs, of which those from `optional_from` on may be missing
// together.
struct text_pattern {
  static constexpr std::size_t most_runs = 8;

  std::array<character_run, most_runs> runs = {};
  std::size_t run_count = 0;
  std::size_t optional_from = 0;
  std::size_t length = 0;  // with the optional runs

  // Whether the whole text has the form.
  constexpr bool matches(const char* text) const {
    for (std::size_t index = 0; index < run_count; ++index) {
      if (index == optional_from && *text == '\0') return true;
      for (int left = runs[index].count; left > 0; --left) {
        if (!runs[index].characters.has(*text++)) return false;
      }
    }
    return *text == '\0';
  }
};

// Not defined for the compiler, which stops here.
void does_not_compile(const char* reason);

// Reads what patterns of fixed form need: ^ and $ at the ends, literals, brackets
// with characters and ranges, a count in braces, and one group at the end that may
// be missing. Anything else does not compile.
class pattern_reader {
 public:
  consteval explicit pattern_reader(std::string_view posix) : rest_(posix) {}

  consteval text_pattern read() {
    expect('^');
    while (!at('(') && !at('$')) add_run();
    pattern_.optional_from = pattern_.run_count;
    if (at('(')) {
      expect('(');
      while (!at(')')) add_run();
      expect(')');
      expect('?');
    }
    expect('$');
    if (!rest_.empty()) does_not_compile("text behind the end");
    return pattern_;
  }

 private:
  consteval bool at(char c) const { return rest_.starts_with(c); }
  consteval char take() {
    if (rest_.empty()) does_not_compile("unexpected end");
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }
  consteval void expect(char c) {
    if (take() != c) does_not_compile("unexpected character");
  }

  static consteval bool is_plain(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  }
  consteval char take_plain() {
    const char c = take();
    if (!is_plain(c)) does_not_compile("not a letter or digit");
    return c;
  }

  consteval character_class read_class() {
    character_class characters;
    if (!at('[')) {
      const char literal = take_plain();
      characters.add(literal, literal);
      return characters;
    }
    expect('[');
    do {
      const char first = take_plain();
      char last = first;
      if (at('-')) {
        expect('-');
        last = take_plain();
      }
      if (last < first) does_not_compile("empty range");
      characters.add(first, last);
    } while (!at(']'));
    expect(']');
    return characters;
  }

  consteval std::uint8_t read_count() {
    if (!at('{')) return 1;
    expect('{');
    int count = 0;
    do {
      const char digit = take();
      if (digit < '0' || digit > '9') does_not_compile("not a count");
      count = count * 10 + (digit - '0');
    } while (!at('}'));
    expect('}');
    if (count < 1 || count > 255) does_not_compile("count out of range");
    return static_cast<std::uint8_t>(count);
  }

  consteval void add_run() {
    if (pattern_.run_count == text_pattern::most_runs) does_not_compile("too many runs");
    character_run& run = pattern_.runs[pattern_.run_count++];
    run.characters = read_class();
    run.count = read_count();
    pattern_.length += run.count;
  }

  std::string_view rest_;
  text_pattern pattern_;
};

consteval text_pattern translate_pattern(std::string_view posix) {
  return pattern_reader(posix).read();
}

}  // namespace tivex
