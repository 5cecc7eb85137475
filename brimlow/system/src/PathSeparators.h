#pragma once

#include "brimlow/system/String.h"

#include <algorithm>

namespace Core::IO
{

// The product writes its relative paths the Windows way on every system, so both separators count everywhere.
constexpr bool isSeparator(Char unit) noexcept
{
    return unit == u'\\' || unit == u'/';
}

// The path with the separators that the system takes.
inline String toSystemPath(const String& path)
{
#ifdef _WIN32
    return path;
#else
    std::u16string result(path.view());
    std::replace(result.begin(), result.end(), u'\\', u'/');
    return result;
#endif
}

} // namespace Core::IO
