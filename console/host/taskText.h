#pragma once

#include <windows.h>

#include <objbase.h>

#include <cstring>
#include <string>

namespace Console
{

// A copy that the receiver frees with CoTaskMemFree.
inline HRESULT copyToTask(const std::wstring& text, LPOLESTR& copy)
{
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    copy = static_cast<LPOLESTR>(CoTaskMemAlloc(size));
    if (copy == nullptr)
    {
        return E_OUTOFMEMORY;
    }
    std::memcpy(copy, text.c_str(), size);
    return S_OK;
}

} // namespace Console
