// What stands between the library and the calls of one system, for the files that
// know the system: see runtime_control.h.
#pragma once

#include <cstddef>
#include <ctime>
#include <optional>

#include "support/runtime_control.h"

namespace runtime_control {

extern std::optional<std::time_t> clock_moment;
extern std::optional<unsigned> process_id;
extern file_control* files;

// The moment at which the clock stands, which may go on.
std::time_t tick();

// Whether this call fails, with its reason in errno.
bool status_fails();
bool read_fails();

// Of the system.
std::size_t size_of_block(void* block);

}  // namespace runtime_control
