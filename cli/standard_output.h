#pragma once

namespace tivex_program {

// Writes out what is buffered. False, and an error line, when standard output
// did not take everything.
bool flush_standard_output();

}  // namespace tivex_program
