#pragma once

namespace tivex {

// The index of the record with this key. Other texts give a negative number or
// the index of some record: the caller compares.
int directory_hash(const char* key);

}  // namespace tivex
