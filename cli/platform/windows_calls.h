#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// The program's texts are UTF-8, the system's UTF-16.
std::wstring wide(std::string_view text);
std::string narrow(std::wstring_view text);

// Whether the descriptor is a console's.
bool is_console(int number);

// Sets errno by the system's last error. Returns false.
bool set_errno();

}  // namespace tivex_program
