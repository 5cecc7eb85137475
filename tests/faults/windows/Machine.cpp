#include "Machine.h"

#include "kit/ImportSpy.h"
#include "platform/handles.h"

#include <memory>
#include <random>
#include <shlobj.h>
#include <string>

namespace fs = std::filesystem;

namespace
{

HRESULT copyTo(PWSTR* result, const std::wstring& text)
{
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    *result = static_cast<PWSTR>(CoTaskMemAlloc(size));
    if (!*result)
    {
        return E_OUTOFMEMORY;
    }
    std::copy_n(text.c_str(), text.size() + 1, *result);
    return S_OK;
}

} // namespace

void Machine::use(const fs::path& folder)
{
    // The libraries ask for no other known folder.
    using Spy = Acceptance::ImportSpy<"SHGetKnownFolderPath", decltype(SHGetKnownFolderPath)>;
    static std::wstring current;
    static const Spy spy([](REFKNOWNFOLDERID, DWORD, HANDLE, PWSTR* result) { return copyTo(result, current); },
                         nullptr);
    current = folder.wstring();
}

fs::path Machine::newPlace()
{
    // Wine shows this machine's memory there; numbers of processes are the same again in another of its prefixes. A
    // process asks for its folder only once.
    static const fs::path memory = L"Z:\\dev\\shm";
    static const fs::path place = (fs::exists(memory) ? memory : fs::temp_directory_path()) /
                                  ("tessaro-faults-" + std::to_string(std::random_device()()));
    return place;
}

void Machine::age(const fs::path& path)
{
    constexpr ULONGLONG twoHours = 2 * 3'600ull * 10'000'000; // in file time units, 100 ns each
    // Backup semantics open folders, too.
    const platform::FileHandle file(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES,
                                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    FILETIME written{};
    GetFileTime(file.get(), nullptr, nullptr, &written);
    ULARGE_INTEGER time{{written.dwLowDateTime, written.dwHighDateTime}};
    time.QuadPart -= twoHours;
    written = {time.LowPart, time.HighPart};
    SetFileTime(file.get(), nullptr, nullptr, &written);
}
