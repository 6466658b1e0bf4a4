#include "xml/xml_buffer.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>
#include <utility>

#include "platform/platform.h"
#include "xml/escaped_text.h"

namespace tivex {

namespace {

constexpr std::uint64_t step = 256;
constexpr std::uint64_t largest_capacity = std::numeric_limits<std::uint32_t>::max() / step * step;

void release_data(xml_buffer_t& buf) {
  if (buf.data == nullptr) return;
  platform::wipe(buf.data, buf.length);
  std::free(buf.data);
}

// Moves the text into a block of a size, a multiple of `step`.
bool move_to_block(xml_buffer_t& buf, std::uint64_t size) {
  auto* const data = static_cast<char*>(std::malloc(static_cast<std::size_t>(size)));
  if (data == nullptr) return false;
  if (buf.length > 0) std::memcpy(data, buf.data, buf.length);
  release_data(buf);
  buf.data = data;
  buf.allocated = static_cast<std::uint32_t>(size);
  buf.announced = buf.length;
  return true;
}

// A piece at a time: a block may be larger than its text will be. Small ones are not
// worth it.
void announce(xml_buffer_t& buf) {
  constexpr std::uint32_t piece = 1U << 18;
  const std::uint32_t size = std::min(piece, buf.allocated - buf.announced);
  if (buf.allocated > piece) platform::expect_writing(buf.data + buf.announced, size);
  buf.announced += size;
}

}  // namespace

xml_buffer_t* xml_buffer_new() {
  void* const memory = std::malloc(sizeof(xml_buffer_t));
  return memory != nullptr ? new (memory) xml_buffer_t() : nullptr;
}

void xml_buffer_free(xml_buffer_t* buf) {
  if (buf == nullptr) return;
  release_data(*buf);
  std::free(buf);
}

bool xml_buffer_reserve(xml_buffer_t& buf, std::size_t need) {
  if (buf.capacity - buf.length >= need) return true;
  if (need > largest_capacity) return false;
  const std::uint64_t total = std::uint64_t{buf.length} + need;
  const std::uint64_t capacity = total - total % step + step;
  if (capacity > largest_capacity) return false;
  if (capacity > buf.allocated) {
    const std::uint64_t doubled = std::min(std::uint64_t{buf.allocated} * 2, largest_capacity);
    if (!move_to_block(buf, std::max(capacity, doubled)) && !move_to_block(buf, capacity)) {
      return false;
    }
  }
  buf.capacity = static_cast<std::uint32_t>(capacity);
  if (buf.capacity > buf.announced) announce(buf);
  return true;
}

void xml_buffer_expect(xml_buffer_t& buf, std::uint64_t bytes) {
  const std::uint64_t size = std::min((bytes / step + 1) * step, largest_capacity);
  if (size > buf.allocated) move_to_block(buf, size);
}

bool xml_buffer_append(xml_buffer_t& buf, std::string_view text) {
  if (text.data() == nullptr) return true;
  if (!xml_buffer_reserve(buf, text.size() + 1)) return false;
  char* const out = xml_buffer_end(buf);
  std::memcpy(out, text.data(), text.size());
  out[text.size()] = '\0';
  buf.length = static_cast<std::uint32_t>(out + text.size() + 1 - buf.data);
  return true;
}

bool xml_buffer_append_escaped(xml_buffer_t& buf, const char* text) {
  if (text == nullptr) return true;
  const escaped_text escaped(text);
  if (!xml_buffer_reserve(buf, escaped.size() + 1)) return false;
  char* const end = escaped.put(xml_buffer_end(buf));
  *end = '\0';
  buf.length = static_cast<std::uint32_t>(end + 1 - buf.data);
  return true;
}

bool xml_buffer_append_list(xml_buffer_t& buf, std::initializer_list<std::string_view> texts) {
  for (const std::string_view text : texts) {
    if (text.data() == nullptr) break;
    if (!xml_buffer_append(buf, text)) return false;
  }
  return true;
}

void xml_buffer_cut(xml_buffer_t& buf, std::uint32_t length) {
  platform::wipe(buf.data + length, buf.length - length);
  buf.length = length;
  buf.data[length - 1] = '\0';
}

char* xml_buffer_take(xml_buffer_t& buf) {
  // It is not made to fit: realloc may move the text and leave what stood before
  // unwiped, and what has never been written to costs no memory.
  return std::exchange(buf, {}).data;
}

}  // namespace tivex
