#include "frame/RegistrySnapshot.h"

#include "platform/handles.h"

#include <cwchar>

namespace Acceptance
{
namespace
{

constexpr wchar_t hexadecimal[] = L"0123456789ABCDEF";

std::wstring content(DWORD type, const std::vector<BYTE>& data)
{
    if (type == REG_SZ || type == REG_EXPAND_SZ)
    {
        std::wstring text(reinterpret_cast<const wchar_t*>(data.data()), data.size() / sizeof(wchar_t));
        return (type == REG_SZ ? L"" : L"expand:") + text.substr(0, text.find(L'\0'));
    }
    std::wstring text = std::to_wstring(type) + L":";
    for (const BYTE byte : data)
    {
        text += hexadecimal[byte >> 4];
        text += hexadecimal[byte & 15];
    }
    return text;
}

// The 32-bit classes have some keys in common with the others: the same keys under a second name.
bool isSecondName(const std::wstring& parent, const std::wstring& child)
{
    return parent == L"HKCR\\Wow6432Node" &&
           (_wcsicmp(child.c_str(), L"AppID") == 0 || _wcsicmp(child.c_str(), L"TypeLib") == 0);
}

} // namespace

RegistrySnapshot::RegistrySnapshot()
{
    read(HKEY_CLASSES_ROOT, L"", L"HKCR");
    read(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\MMC", L"MMC");
}

void RegistrySnapshot::read(HKEY parent, const std::wstring& name, const std::wstring& shownName)
{
    platform::RegistryKey key;
    if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ, key.put()) != ERROR_SUCCESS)
    {
        return;
    }
    m_lines[shownName];
    std::vector<wchar_t> text(16384); // the longest name of a value there can be
    for (DWORD index = 0;; ++index)
    {
        DWORD length = static_cast<DWORD>(text.size());
        DWORD type = 0;
        DWORD size = 0;
        if (RegEnumValueW(key.get(), index, text.data(), &length, nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        {
            break;
        }
        std::vector<BYTE> data(size);
        RegQueryValueExW(key.get(), text.data(), nullptr, nullptr, data.data(), &size);
        m_lines[shownName + L" : " + text.data()] = content(type, data);
    }
    for (DWORD index = 0;; ++index)
    {
        DWORD length = static_cast<DWORD>(text.size());
        if (RegEnumKeyExW(key.get(), index, text.data(), &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
        {
            break;
        }
        const std::wstring child = text.data();
        if (!isSecondName(shownName, child))
        {
            read(key.get(), child, shownName + L"\\" + child);
        }
    }
}

std::map<std::wstring, std::wstring> RegistrySnapshot::without(const RegistrySnapshot& other) const
{
    std::map<std::wstring, std::wstring> lines;
    for (const auto& line : m_lines)
    {
        const auto found = other.m_lines.find(line.first);
        if (found == other.m_lines.end() || found->second != line.second)
        {
            lines.insert(line);
        }
    }
    return lines;
}

} // namespace Acceptance
