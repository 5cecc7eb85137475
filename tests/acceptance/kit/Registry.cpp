#include "kit/Registry.h"

#include "platform/handles.h"

#include <stdexcept>

namespace Acceptance::Registry
{
namespace
{

constexpr wchar_t familyKey[] = L"SOFTWARE\\Brimlow";
constexpr wchar_t productKey[] = L"SOFTWARE\\Brimlow\\KV Tessaro";
constexpr wchar_t preferenceName[] = L"Restart Services";

std::optional<Value> read(HKEY root, const wchar_t* keyName, const wchar_t* name)
{
    platform::RegistryKey key;
    Value value;
    DWORD size = 0;
    if (RegOpenKeyExW(root, keyName, 0, KEY_READ, key.put()) != ERROR_SUCCESS ||
        RegQueryValueExW(key.get(), name, nullptr, &value.type, nullptr, &size) != ERROR_SUCCESS)
    {
        return std::nullopt;
    }
    value.text.resize((size + 1) / sizeof(wchar_t));
    RegQueryValueExW(key.get(), name, nullptr, nullptr, reinterpret_cast<BYTE*>(value.text.data()), &size);
    if (value.text.empty() || value.text.back() != L'\0')
    {
        throw std::runtime_error("a stored text without its terminating null");
    }
    value.text.pop_back();
    return value;
}

} // namespace

void reset()
{
    const LSTATUS status = RegDeleteTreeW(HKEY_LOCAL_MACHINE, familyKey);
    if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND)
    {
        throw std::runtime_error("cannot delete the registry key of the family");
    }
}

std::optional<Value> restartPreference()
{
    return read(HKEY_LOCAL_MACHINE, productKey, preferenceName);
}

void setRestartPreference(const Value& value)
{
    setRestartPreference(value.type, value.text.c_str(), static_cast<DWORD>((value.text.size() + 1) * sizeof(wchar_t)));
}

void preferRestart(bool restart)
{
    setRestartPreference({REG_SZ, restart ? L"true" : L"false"});
}

void setRestartPreference(DWORD type, const void* data, DWORD size)
{
    const LSTATUS status = RegSetKeyValueW(HKEY_LOCAL_MACHINE, productKey, preferenceName, type, data, size);
    if (status != ERROR_SUCCESS)
    {
        throw std::runtime_error("cannot set the restart preference");
    }
}

void makeUnwritable()
{
    platform::RegistryKey key;
    if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, familyKey, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr,
                        key.put(), nullptr) != ERROR_SUCCESS)
    {
        throw std::runtime_error("cannot make the registry key of the family");
    }
}

std::optional<std::wstring> text(HKEY root, const std::wstring& key, const std::wstring& name)
{
    const auto value = read(root, key.c_str(), name.empty() ? nullptr : name.c_str());
    return value ? std::optional(value->text) : std::nullopt;
}

} // namespace Acceptance::Registry
