#include "TemporaryFolder.h"

#ifdef _WIN32
#include <windows.h>
#endif

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <thread>

std::filesystem::path toPath(const Core::String& text)
{
    const std::string bytes = text.toUtf8();
    return std::u8string(bytes.begin(), bytes.end());
}

Core::String fromPath(const std::filesystem::path& path)
{
    const std::u8string bytes = path.u8string();
    return Core::String::fromUtf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

#ifdef _WIN32

namespace
{

// The path outside Wine.
std::wstring unixPath(const std::filesystem::path& path)
{
    using GetUnixFileName = char*(CDECL*)(LPCWSTR);
    const auto getUnixFileName = reinterpret_cast<GetUnixFileName>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
    char* const name = getUnixFileName(path.c_str());
    const std::wstring text = Core::String::fromUtf8(name).str();
    HeapFree(GetProcessHeap(), 0, name);
    return text;
}

// Runs a command outside Wine, which may go on after the call, and waits until the path is there, or is not. Returns
// false when that does not come.
bool runOutside(const std::wstring& command, const std::filesystem::path& path, bool isThere)
{
    _wsystem((L"start /wait /unix " + command).c_str());
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while ((GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES) != isThere)
    {
        if (std::chrono::steady_clock::now() > deadline)
        {
            return false;
        }
        std::this_thread::yield();
    }
    return true;
}

} // namespace

// Wine has no calls of Windows that make and remove a link: CreateSymbolicLinkW only says that it did, and
// RemoveDirectoryW removes what the link points to.
FolderLink::FolderLink(const std::filesystem::path& target, const std::filesystem::path& link) : m_link(link)
{
    if (!runOutside(L"/bin/ln -s " + unixPath(target) + L' ' + unixPath(link.parent_path()) + L'/' +
                        link.filename().wstring(),
                    link, true))
    {
        throw std::runtime_error("cannot make a link");
    }
}

FolderLink::~FolderLink()
{
    if (GetFileAttributesW(m_link.c_str()) != INVALID_FILE_ATTRIBUTES)
    {
        runOutside(L"/bin/rm -f " + unixPath(m_link.parent_path()) + L'/' + m_link.filename().wstring(), m_link, false);
    }
}

#else

FolderLink::FolderLink(const std::filesystem::path& target, const std::filesystem::path& link) : m_link(link)
{
    std::filesystem::create_directory_symlink(target, link);
}

FolderLink::~FolderLink()
{
    std::error_code ignored;
    std::filesystem::remove(m_link, ignored);
}

#endif

TemporaryFolder::TemporaryFolder()
    : m_folder(std::filesystem::temp_directory_path() / ("tessaro-test-" + std::to_string(std::random_device()())))
{
    std::filesystem::create_directories(m_folder);
}

TemporaryFolder::~TemporaryFolder()
{
    // Read-only files cannot be removed on Windows.
    std::error_code ignored;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(m_folder, ignored))
    {
        std::filesystem::permissions(entry, std::filesystem::perms::owner_all, std::filesystem::perm_options::add,
                                     ignored);
    }
    std::filesystem::remove_all(m_folder, ignored);
}

Core::String TemporaryFolder::path(const wchar_t* name) const
{
    return fromPath(m_folder / toPath(name));
}

void TemporaryFolder::write(const wchar_t* name, std::string_view content) const
{
    std::ofstream file(m_folder / toPath(name), std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!file.flush())
    {
        throw std::runtime_error("cannot write a test file");
    }
}

std::string TemporaryFolder::read(const wchar_t* name) const
{
    std::ifstream file(m_folder / toPath(name), std::ios::binary);
    if (!file)
    {
        throw std::runtime_error("cannot open a test file");
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<Core::String> TemporaryFolder::names() const
{
    std::vector<Core::String> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder))
    {
        names.push_back(fromPath(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}
