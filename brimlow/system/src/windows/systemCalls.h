#pragma once

#include "FileOperations.h"

#include <windows.h>

namespace Core::IO
{

// What a call ended with that left its error as the thread's last one.
inline SystemError resultOf(BOOL success) noexcept
{
    return success ? 0 : GetLastError();
}

} // namespace Core::IO
