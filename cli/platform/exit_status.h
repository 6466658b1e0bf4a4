#pragma once

namespace tivex_program {

inline constexpr int exit_success = 0;
inline constexpr int exit_failure = 1;  // of the data, or of reading and writing it
inline constexpr int exit_usage = 2;

}  // namespace tivex_program
