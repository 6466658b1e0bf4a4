// What a host tells the preloaded allocator, and what it learns from it.
#pragma once

#include <cstddef>

struct preload_state {
  // While the host is inside the library allocations are counted and may fail,
  // and released blocks are looked into.
  bool inside;
  std::size_t allocations;
  std::size_t fail_at;  // which allocation fails, counted from 1; 0: none
  bool all_later;       // so does every later one
  bool failed;          // one has failed; the host resets it
  bool always_move;     // realloc never keeps a block where it is
  long live_blocks;
  long blocks_with_text;  // released, moved or cut while they held a watched text
};

preload_state& preload();

// Watches for a text, as bytes and as wide characters.
void preload_watch(const char* text);
