#include "Settings.h"

#include <windows.h>

#include <algorithm>

namespace Console
{

Settings::Settings(const std::wstring& folder)
    : m_key(L"Software\\Brimlow\\TConsole" + (folder.empty() ? folder : L"\\" + folder))
{
}

std::optional<std::wstring> Settings::text(const std::wstring& name) const
{
    DWORD size = 0;
    if (RegGetValueW(HKEY_CURRENT_USER, m_key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &size) !=
        ERROR_SUCCESS)
    {
        return std::nullopt;
    }
    std::wstring text(size / sizeof(wchar_t), L'\0');
    if (RegGetValueW(HKEY_CURRENT_USER, m_key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &size) !=
        ERROR_SUCCESS)
    {
        return std::nullopt;
    }
    // Up to the zero that RegGetValue puts at the end and counts. Where the value has no byte at all, it counts none.
    text.resize(std::min(text.find(L'\0'), text.size()));
    return text;
}

void Settings::setText(const std::wstring& name, const std::wstring& text) const
{
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    RegSetKeyValueW(HKEY_CURRENT_USER, m_key.c_str(), name.c_str(), REG_SZ, text.c_str(), size);
}

} // namespace Console
