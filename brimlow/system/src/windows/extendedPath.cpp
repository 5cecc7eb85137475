#include "extendedPath.h"

#include <windows.h>

namespace Core::IO
{

std::wstring extendedPath(const String& path)
{
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    // Without the terminating null, unlike the first call.
    full.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\"))
    {
        return full;
    }
    if (full.starts_with(L"\\\\"))
    {
        return L"\\\\?\\UNC" + full.substr(1);
    }
    return full.empty() ? full : L"\\\\?\\" + full;
}

} // namespace Core::IO
