#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string_view>

namespace tivex {

// A growable output text. It holds account data, so it is overwritten with zeros
// before its memory is released, also when it grows into a new block.
struct xml_buffer_t {
  char* data = nullptr;
  std::uint32_t length = 0;    // bytes in use with the terminating NUL; 0 before the first append
  std::uint32_t capacity = 0;  // bytes reserved so far; 0 or a multiple of 256
  // Bytes that the block really has, `capacity` or more: blocks are made as large
  // as the text is expected to be, or double, so that a long text is not copied
  // once for every 256 bytes.
  std::uint32_t allocated = 0;
  std::uint32_t announced = 0;  // bytes that the system knows to be written
};

// An empty text, or null when memory is exhausted.
xml_buffer_t* xml_buffer_new();

void xml_buffer_free(xml_buffer_t* buf);

struct xml_buffer_delete {
  void operator()(xml_buffer_t* buf) const { xml_buffer_free(buf); }
};
using xml_buffer_ptr = std::unique_ptr<xml_buffer_t, xml_buffer_delete>;

// Makes sure that `need` bytes are free behind `length`. False, with nothing
// changed, when memory is exhausted or the text would reach 4 GiB.
bool xml_buffer_reserve(xml_buffer_t& buf, std::size_t need);

// Where the next text goes: over the terminating NUL, if there is one.
inline char* xml_buffer_end(const xml_buffer_t& buf) {
  return buf.data + (buf.length > 0 ? buf.length - 1 : 0);
}

// Says how long the text will be, roughly; nothing depends on it but speed.
void xml_buffer_expect(xml_buffer_t& buf, std::uint64_t bytes);

// Each appends a text and returns false when it did not fit; a null text (a view
// of nothing) appends nothing. The last writes "<", ">" and "&" as entities.
bool xml_buffer_append(xml_buffer_t& buf, std::string_view text);
bool xml_buffer_append_escaped(xml_buffer_t& buf, const char* text);

// Appends texts in turn up to the first null; stops and returns false at the
// first that does not fit, and those before it stay.
bool xml_buffer_append_list(xml_buffer_t& buf, std::initializer_list<std::string_view> texts);

// Takes away what stands behind the first `length` bytes, which count the
// terminating NUL as the text's own length does.
void xml_buffer_cut(xml_buffer_t& buf, std::uint32_t length);

// Hands the text over to the caller, who releases it with free().
char* xml_buffer_take(xml_buffer_t& buf);

}  // namespace tivex
