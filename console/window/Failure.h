#pragma once

#include <string>

namespace Console
{

// Throws std::system_error with GetLastError's code.
[[noreturn]] void throwLastError(const char* function);

// One sentence about the exception that is being handled. Call it in a catch block only.
std::wstring describeFailure();

// Shows the exception that is being handled in a message box; while such a box is open, further ones are only
// written to the debugger. Call it in a catch block only.
void reportFailure() noexcept;

} // namespace Console
