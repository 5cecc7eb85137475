#pragma once

#include "FileOperations.h"
#include "PathSeparators.h"

#include <cerrno>
#include <string>

namespace Core::IO
{

inline std::string systemPath(const String& path)
{
    return toSystemPath(path).toUtf8();
}

// What a call that returns 0 for success ended with.
inline SystemError resultOf(int returned) noexcept
{
    return returned == 0 ? 0 : static_cast<SystemError>(errno);
}

} // namespace Core::IO
