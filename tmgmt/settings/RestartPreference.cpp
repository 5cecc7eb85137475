#include "tmgmt/settings/RestartPreference.h"

#include "platform/handles.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace TMgmt
{
namespace
{

constexpr wchar_t keyName[] = L"SOFTWARE\\Brimlow\\KV Tessaro";
constexpr wchar_t valueName[] = L"Restart Services";
constexpr REGSAM access = KEY_READ | KEY_WRITE;

} // namespace

bool readRestartPreference()
{
    platform::RegistryKey key;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, keyName, 0, access, key.put()) != ERROR_SUCCESS)
    {
        return true;
    }
    std::array<wchar_t, 256> text{};
    DWORD type = REG_NONE;
    DWORD size = sizeof text;
    if (RegQueryValueExW(key.get(), valueName, nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size) !=
        ERROR_SUCCESS)
    {
        return true;
    }
    if (type != REG_SZ && type != REG_EXPAND_SZ)
    {
        return true;
    }
    // The registry does not see to it that a text is terminated.
    const std::wstring_view stored(text.data(), size / sizeof(wchar_t));
    return stored.substr(0, stored.find(L'\0')) != L"false";
}

void writeRestartPreference(bool restart)
{
    platform::RegistryKey key;
    if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, keyName, 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr, key.put(),
                        nullptr) != ERROR_SUCCESS)
    {
        return;
    }
    const std::wstring_view text = restart ? L"true" : L"false";
    // Both are literals: the terminating null, which is stored too, follows the view.
    RegSetValueExW(key.get(), valueName, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.data()),
                   static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

} // namespace TMgmt
