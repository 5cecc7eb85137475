#pragma once

#include <windows.h>

#include <optional>
#include <string>

// The machine-wide key of the product's family and the restart preference in it.
namespace Acceptance::Registry
{

struct Value
{
    DWORD type = REG_SZ;
    // Without the terminating null.
    std::wstring text;

    bool operator==(const Value&) const = default;
};

// Deletes HKEY_LOCAL_MACHINE\SOFTWARE\Brimlow.
void reset();

// "Restart Services" under HKEY_LOCAL_MACHINE\SOFTWARE\Brimlow\KV Tessaro; nothing when key or value is missing. Throws
// std::runtime_error for a text without its terminating null.
std::optional<Value> restartPreference();
void setRestartPreference(const Value& value);
void preferRestart(bool restart);
// Any bytes, for what is not a text.
void setRestartPreference(DWORD type, const void* data, DWORD size);
// Until the next reset nobody can make a lasting key below the family's.
void makeUnwritable();

// A value's text anywhere below HKEY_CLASSES_ROOT or HKEY_LOCAL_MACHINE; nothing when it is missing. An empty name is
// the default value.
std::optional<std::wstring> text(HKEY root, const std::wstring& key, const std::wstring& name);

} // namespace Acceptance::Registry
