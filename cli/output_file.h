#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// Writes the text to standard output. Returns the reason of a failure, empty
// for none.
std::string write_standard_output(std::string_view text);

// Makes the text the content of the file, so that the file holds the old
// content or the new one at every moment, also after a failure. Symbolic links
// are followed; what is no regular file is written directly. Returns the reason
// of a failure, empty for none.
std::string replace_file(const std::string& path, std::string_view text);

// Whether two names lead to the same file.
bool same_file(const std::string& left, const std::string& right);

}  // namespace tivex_program
