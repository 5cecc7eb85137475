#pragma once

#include "platform/mmc.h"

#include <string>

namespace Console
{

// How arguments look in the trace.
std::wstring describe(long long value);
std::wstring describe(unsigned long long value);
std::wstring describe(const void* pointer);
std::wstring describe(const wchar_t* text); // quoted; "(null)", "(ask)" for the text callback
std::wstring describe(const GUID& id);
std::wstring describe(MMC_NOTIFY_TYPE event);
inline std::wstring describe(int value)
{
    return describe(static_cast<long long>(value));
}
inline std::wstring describe(long value)
{
    return describe(static_cast<long long>(value));
}
inline std::wstring describe(unsigned value)
{
    return describe(static_cast<unsigned long long>(value));
}
inline std::wstring describe(unsigned long value)
{
    return describe(static_cast<unsigned long long>(value));
}

// listOf(L"nCol", 0, L"title", text) gives "nCol=0, title=\"Name\"".
inline std::wstring listOf()
{
    return {};
}

template <class Value, class... Rest>
std::wstring listOf(const wchar_t* name, const Value& value, const Rest&... rest)
{
    std::wstring text = std::wstring(name) + L"=" + describe(value);
    if constexpr (sizeof...(rest) > 0)
    {
        text += L", " + listOf(rest...);
    }
    return text;
}

} // namespace Console
