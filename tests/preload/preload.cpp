// Stands before the allocator that the host would have, for every caller: also for
// what the C library allocates for itself.
#include "preload.h"

#include <dlfcn.h>
#include <malloc.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

struct watched_text {
  std::size_t length;
  char bytes[64];
  wchar_t wide[64];
};

preload_state state;
watched_text watched[32];
std::size_t watched_count = 0;

// The function of that name in the allocator behind this one.
template <class function>
function* next(function* /*replaced*/, const char* name) {
  return reinterpret_cast<function*>(dlsym(RTLD_NEXT, name));
}
#define NEXT(name)                                \
  ([]() {                                         \
    static auto* const found = next(name, #name); \
    return found;                                 \
  }())

bool refused() {
  if (!state.inside) return false;
  const std::size_t number = ++state.allocations;
  if (state.fail_at == 0 || number < state.fail_at) return false;
  if (number > state.fail_at && !state.all_later) return false;
  state.failed = true;
  errno = ENOMEM;
  return true;
}

// Fills the block from a place on, so that it holds nothing of an earlier owner.
void* given(void* block, std::size_t from) {
  if (block == nullptr) return nullptr;
  const std::size_t size = NEXT(malloc_usable_size)(block);
  if (size > from) std::memset(static_cast<char*>(block) + from, 0xA5, size - from);
  return block;
}

void* counted(void* block) {
  if (block != nullptr) ++state.live_blocks;
  return block;
}

bool holds_watched(const char* at, std::size_t size) {
  return std::any_of(watched, watched + watched_count, [&](const watched_text& text) {
    return memmem(at, size, text.bytes, text.length) != nullptr ||
           memmem(at, size, text.wide, text.length * sizeof(wchar_t)) != nullptr;
  });
}

// Looks at the block behind the bytes that are kept.
bool gives_text_away(void* block, std::size_t kept) {
  const std::size_t size = NEXT(malloc_usable_size)(block);
  return state.inside && size > kept &&
         holds_watched(static_cast<const char*>(block) + kept, size - kept);
}

void* moved(void* block, std::size_t size) {
  void* const copy = given(NEXT(malloc)(size), 0);
  if (copy == nullptr) return nullptr;
  std::memcpy(copy, block, std::min(size, NEXT(malloc_usable_size)(block)));
  NEXT(free)(block);
  return copy;
}

}  // namespace

preload_state& preload() { return state; }

void preload_watch(const char* text) {
  watched_text& entry = watched[watched_count++];
  entry.length = std::strlen(text);
  for (std::size_t at = 0; at < entry.length; ++at) {
    entry.bytes[at] = text[at];
    entry.wide[at] = static_cast<unsigned char>(text[at]);
  }
}

extern "C" {

void* malloc(std::size_t size) {
  return refused() ? nullptr : counted(given(NEXT(malloc)(size), 0));
}

void* calloc(std::size_t count, std::size_t size) {
  return refused() ? nullptr : counted(given(NEXT(calloc)(count, size), count * size));
}

void free(void* block) {
  if (block == nullptr) return;
  if (gives_text_away(block, 0)) ++state.blocks_with_text;
  --state.live_blocks;
  NEXT(free)(block);
}

void* realloc(void* block, std::size_t size) {
  if (block == nullptr) return malloc(size);
  if (refused()) return nullptr;
  const std::size_t before = NEXT(malloc_usable_size)(block);
  const auto place = reinterpret_cast<std::uintptr_t>(block);
  const bool whole = gives_text_away(block, 0);
  const bool rest = gives_text_away(block, size);
  void* const result = state.always_move ? moved(block, size) : NEXT(realloc)(block, size);
  if (result == nullptr) return nullptr;
  const bool stays = reinterpret_cast<std::uintptr_t>(result) == place;
  if (stays ? rest : whole) ++state.blocks_with_text;
  return given(result, std::min(size, before));
}

void* reallocarray(void* block, std::size_t count, std::size_t size) {
  std::size_t bytes = 0;
  if (!__builtin_mul_overflow(count, size, &bytes)) return realloc(block, bytes);
  errno = ENOMEM;
  return nullptr;
}

void* memalign(std::size_t alignment, std::size_t size) {
  return refused() ? nullptr : counted(given(NEXT(memalign)(alignment, size), 0));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) { return memalign(alignment, size); }

int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
  void* const result = memalign(alignment, size);
  if (result == nullptr) return ENOMEM;
  *block = result;
  return 0;
}

}  // extern "C"
