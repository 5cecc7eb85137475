#include "console/host/Registration.h"

#include "describe.h"
#include "platform/handles.h"

#include <array>

namespace Console
{

namespace
{

std::wstring readServer(const CLSID& clsid, REGSAM registryView)
{
    const std::wstring path = L"CLSID\\" + describe(clsid) + L"\\InprocServer32";
    platform::RegistryKey key;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, KEY_READ | registryView, key.put()) != ERROR_SUCCESS)
    {
        return {};
    }
    // Expands environment variables where the value says so.
    std::array<wchar_t, 1024> text{};
    DWORD size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    if (RegGetValueW(key.get(), nullptr, nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size) != ERROR_SUCCESS)
    {
        return {};
    }
    return text.data();
}

// The machine type in the library's header; 0 when it is no library.
WORD machineOf(HANDLE file)
{
    IMAGE_DOS_HEADER dos{};
    DWORD read = 0;
    struct
    {
        DWORD signature;
        IMAGE_FILE_HEADER file;
    } header{};
    if (!ReadFile(file, &dos, sizeof dos, &read, nullptr) || read != sizeof dos || dos.e_magic != IMAGE_DOS_SIGNATURE ||
        SetFilePointer(file, dos.e_lfanew, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER ||
        !ReadFile(file, &header, sizeof header, &read, nullptr) || read != sizeof header ||
        header.signature != IMAGE_NT_SIGNATURE)
    {
        return 0;
    }
    return header.file.Machine;
}

std::wstring problemOf(const std::wstring& library)
{
    std::array<wchar_t, 1024> found{};
    // The name alone is looked for as LoadLibrary would.
    if (SearchPathW(nullptr, library.c_str(), L".dll", static_cast<DWORD>(found.size()), found.data(), nullptr) == 0)
    {
        return L"Its library " + library + L" is missing. Install the snap-in again.";
    }
    const platform::FileHandle file(CreateFileW(found.data(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                                nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file)
    {
        return L"Its library " + library + L" cannot be read (error " + std::to_wstring(GetLastError()) +
               L"). Check the file's permissions.";
    }
    const WORD machine = machineOf(file.get());
    if (machine == 0)
    {
        return L"Its library " + library + L" is damaged. Install the snap-in again.";
    }
    if (machine != IMAGE_FILE_MACHINE_AMD64)
    {
        return L"Its library " + library + L" is built for another processor (" +
               (machine == IMAGE_FILE_MACHINE_I386 ? std::wstring(L"32-bit") : describe(unsigned{machine})) +
               L"). Install the snap-in's 64-bit edition.";
    }
    return {};
}

} // namespace

ServerState inspectServer(const CLSID& clsid)
{
    ServerState state;
    state.library = readServer(clsid, KEY_WOW64_64KEY);
    if (!state.library.empty())
    {
        state.problem = problemOf(state.library);
    }
    else if (!readServer(clsid, KEY_WOW64_32KEY).empty())
    {
        state.problem = L"Class " + describe(clsid) +
                        L" is registered for 32-bit programs only. Install the snap-in's 64-bit edition.";
    }
    else
    {
        state.problem = L"Class " + describe(clsid) + L" is not registered. Register its library with regsvr32.";
    }
    return state;
}

} // namespace Console
