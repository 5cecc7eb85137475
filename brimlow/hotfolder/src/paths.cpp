#include "paths.h"

#include <algorithm>

namespace HotFolders
{

namespace
{

using View = Core::String::View;

constexpr bool isSeparator(Core::Char unit) noexcept
{
    return unit == u'\\' || unit == u'/';
}

constexpr bool isLetter(Core::Char unit) noexcept
{
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

View withoutTrailingSeparators(View path) noexcept
{
    while (!path.empty() && isSeparator(path.back()))
    {
        path.remove_suffix(1);
    }
    return path;
}

// How many units there are before the first separator.
std::size_t componentLength(View path) noexcept
{
    return static_cast<std::size_t>(std::find_if(path.begin(), path.end(), isSeparator) - path.begin());
}

// "\\server\share", or more.
bool isNetworkPath(View path) noexcept
{
    if (path.size() < 2 || !isSeparator(path[0]) || !isSeparator(path[1]))
    {
        return false;
    }
    path.remove_prefix(2);
    const std::size_t server = componentLength(path);
    return server > 0 && server + 1 < path.size() && !isSeparator(path[server + 1]);
}

} // namespace

bool containsSeparator(const Core::String& text) noexcept
{
    return componentLength(text.view()) < text.length();
}

Core::String lastComponent(const Core::String& path)
{
    const View trimmed = withoutTrailingSeparators(path.view());
    const auto separator = std::find_if(trimmed.rbegin(), trimmed.rend(), isSeparator);
    return separator == trimmed.rend() ? path : trimmed.substr(static_cast<std::size_t>(trimmed.rend() - separator));
}

bool isFullPath(const Core::String& path) noexcept
{
    const View units = path.view();
#ifndef _WIN32
    if (!units.empty() && units.front() == u'/')
    {
        return true;
    }
#endif
    const bool onDrive = units.size() >= 3 && isLetter(units[0]) && units[1] == u':' && isSeparator(units[2]);
    return onDrive || isNetworkPath(units);
}

Core::String comparisonKey(const Core::String& path)
{
    return Core::String(withoutTrailingSeparators(path.view())).toUpper().replaceAll(L"/", L"\\");
}

} // namespace HotFolders
