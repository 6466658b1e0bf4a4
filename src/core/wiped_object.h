// Objects on the heap that hold account data: their memory is overwritten with
// zeros before it is released.
#pragma once

#include <cstdlib>
#include <memory>
#include <new>

#include "platform/platform.h"

namespace tivex {

template <class object>
void destroy_wiped(object* thing) {
  if (thing == nullptr) return;
  thing->~object();
  platform::wipe(thing, sizeof(object));
  std::free(thing);
}

template <class object>
struct wiping_delete {
  void operator()(object* thing) const { destroy_wiped(thing); }
};

template <class object>
using wiped_ptr = std::unique_ptr<object, wiping_delete<object>>;

// A new object with every field at its initial value, or null when memory is
// exhausted.
template <class object>
wiped_ptr<object> make_wiped() {
  void* const memory = std::malloc(sizeof(object));
  return wiped_ptr<object>(memory != nullptr ? new (memory) object() : nullptr);
}

}  // namespace tivex
