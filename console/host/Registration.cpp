#include "console/host/Registration.h"

#include "describe.h"
#include "platform/handles.h"

#include <shlwapi.h>

#include <algorithm>
#include <array>

namespace Console
{

namespace
{

constexpr wchar_t snapInsKey[] = L"Software\\Microsoft\\MMC\\SnapIns";

std::wstring readText(HKEY key, const wchar_t* name)
{
    DWORD size = 0;
    if (RegGetValueW(key, nullptr, name, RRF_RT_REG_SZ, nullptr, nullptr, &size) != ERROR_SUCCESS)
    {
        return {};
    }
    std::wstring text(size / sizeof(wchar_t), L'\0');
    if (RegGetValueW(key, nullptr, name, RRF_RT_REG_SZ, nullptr, text.data(), &size) != ERROR_SUCCESS)
    {
        return {};
    }
    return text.substr(0, text.find(L'\0'));
}

std::wstring nameOf(HKEY key)
{
    const std::wstring indirect = readText(key, L"NameStringIndirect");
    std::array<wchar_t, 512> text{};
    if (!indirect.empty() &&
        SUCCEEDED(SHLoadIndirectString(indirect.c_str(), text.data(), static_cast<UINT>(text.size()), nullptr)) &&
        text[0] != L'\0')
    {
        return text.data();
    }
    return readText(key, L"NameString");
}

std::optional<RegisteredSnapIn> readEntry(HKEY snapIns, const std::wstring& keyName)
{
    RegisteredSnapIn entry;
    platform::RegistryKey key;
    if (FAILED(CLSIDFromString(keyName.c_str(), &entry.clsid)) ||
        RegOpenKeyExW(snapIns, keyName.c_str(), 0, KEY_READ, key.put()) != ERROR_SUCCESS)
    {
        return std::nullopt;
    }
    entry.name = nameOf(key.get());
    if (entry.name.empty())
    {
        entry.name = keyName;
    }
    CLSID about;
    if (const std::wstring text = readText(key.get(), L"About");
        !text.empty() && SUCCEEDED(CLSIDFromString(text.c_str(), &about)))
    {
        entry.about = about;
    }
    platform::RegistryKey standAlone;
    entry.standAlone = RegOpenKeyExW(key.get(), L"StandAlone", 0, KEY_READ, standAlone.put()) == ERROR_SUCCESS;
    return entry;
}

platform::RegistryKey openSnapIns()
{
    platform::RegistryKey key;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, snapInsKey, 0, KEY_READ, key.put());
    return key;
}

} // namespace

std::vector<RegisteredSnapIn> registeredSnapIns()
{
    std::vector<RegisteredSnapIn> entries;
    const platform::RegistryKey snapIns = openSnapIns();
    std::array<wchar_t, 256> name{}; // the longest key name there can be
    for (DWORD index = 0;; ++index)
    {
        DWORD length = static_cast<DWORD>(name.size());
        if (!snapIns || RegEnumKeyExW(snapIns.get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
                            ERROR_SUCCESS)
        {
            break;
        }
        if (std::optional<RegisteredSnapIn> entry = readEntry(snapIns.get(), name.data()))
        {
            entries.push_back(std::move(*entry));
        }
    }
    std::sort(entries.begin(), entries.end(),
              [](const RegisteredSnapIn& left, const RegisteredSnapIn& right)
              { return lstrcmpiW(left.name.c_str(), right.name.c_str()) < 0; });
    return entries;
}

std::optional<RegisteredSnapIn> findSnapIn(const CLSID& clsid)
{
    const platform::RegistryKey snapIns = openSnapIns();
    return snapIns ? readEntry(snapIns.get(), describe(clsid)) : std::nullopt;
}

} // namespace Console
