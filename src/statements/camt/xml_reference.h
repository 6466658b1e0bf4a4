#pragma once

namespace tivex {

// Reads a reference to a character or to one of the five entities, which begins with "&".
// Returns the place behind its ";", or null when it is none.
const char* read_reference(const char* at, char32_t& character);

}  // namespace tivex
