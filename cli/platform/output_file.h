#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// Makes the text the content of the file, so that the file holds the old
// content or the new one at every moment, also after a failure. Symbolic links
// are followed; what is no regular file is written directly. Returns the reason
// of a failure, empty for none.
std::string replace_file(const std::string& path, std::string_view text);

// Whether the output would take the place of the file that is read, or fill it. "-" is
// standard input and standard output, whatever files there are. A terminal and other
// devices of characters may be both.
bool is_file_to_read(const std::string& output, const std::string& input);

}  // namespace tivex_program
