// Calls into the library, watched by the preloaded allocator.
#pragma once

#include <cstddef>
#include <memory>

#include "preload.h"
#include "tivex.h"

// Which allocation of the disturbed call fails; 0: none.
struct disturbance {
  std::size_t fail_at = 0;
  bool all_later = false;
};
inline disturbance current;

struct inside_library {
  explicit inside_library(disturbance what = {}) {
    preload_state& state = preload();
    state.allocations = 0;
    state.fail_at = what.fail_at;
    state.all_later = what.all_later;
    state.inside = true;
  }
  ~inside_library() { preload().inside = false; }
};

template <class function, class... values>
auto call(function* exported, values... arguments) {
  const inside_library inside;
  return exported(arguments...);
}

template <class function, class... values>
auto disturbed(function* exported, values... arguments) {
  const inside_library inside(current);
  return exported(arguments...);
}

struct message_free {
  void operator()(tivex_t* msg) const { call(tivex_free, msg); }
};
using message_ptr = std::unique_ptr<tivex_t, message_free>;

struct parser_free {
  void operator()(tivex_stmt_parser_t* parser) const { call(tivex_stmt_parser_free, parser); }
};
using parser_ptr = std::unique_ptr<tivex_stmt_parser_t, parser_free>;
