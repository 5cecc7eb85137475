#include "FolderFiles.h"

#include "platform/handles.h"

#include "brimlow/system/FileSystem.h"

namespace Core::IO
{

namespace
{

struct SearchTraits
{
    using Handle = HANDLE;
    static Handle none() noexcept { return INVALID_HANDLE_VALUE; }
    static void close(Handle handle) noexcept { FindClose(handle); }
};
using Search = platform::Owner<SearchTraits>;

// The path in the form that may be longer than MAX_PATH whatever the process says in its manifest; empty when there is
// none.
std::wstring extendedPath(const String& path)
{
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    // Without the terminating null, unlike the first call.
    full.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\"))
    {
        return full;
    }
    if (full.starts_with(L"\\\\"))
    {
        return L"\\\\?\\UNC" + full.substr(1);
    }
    return full.empty() ? full : L"\\\\?\\" + full;
}

} // namespace

std::vector<String> fileNamesIn(const String& folder)
{
    std::vector<String> names;
    // "*" takes everything: the system's own patterns compare short names too, so that "*.log" would give "a.log1".
    const std::wstring pattern = extendedPath(FileSystem::combinePath(folder, L"*"));
    WIN32_FIND_DATAW found{};
    // Short names are left out and many entries are read in one go.
    const Search search(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found, FindExSearchNameMatch, nullptr,
                                         FIND_FIRST_EX_LARGE_FETCH));
    if (!search)
    {
        return names;
    }
    do
    {
        // A link to a folder has the attribute too.
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        {
            names.emplace_back(found.cFileName);
        }
    } while (FindNextFileW(search.get(), &found));
    return names;
}

bool removeFile(const String& path)
{
    return DeleteFileW(extendedPath(path).c_str());
}

} // namespace Core::IO
