#pragma once

#include "FileOperations.h"

#include <cstdint>
#include <windows.h>

namespace Core::IO
{

// What a call ended with that left its error as the thread's last one.
inline SystemError resultOf(BOOL success) noexcept
{
    return success ? 0 : GetLastError();
}

// Whether a virus scanner, an indexer or a reader may have the file open just now.
inline bool isInUse(SystemError error) noexcept
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

// Before another attempt.
inline void pause() noexcept
{
    Sleep(100);
}

// In units of 100 ns.
constexpr std::uint64_t ticks(const FILETIME& time) noexcept
{
    return (static_cast<std::uint64_t>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
}

} // namespace Core::IO
