#include "brimlow/system/FileTree.h"

#include "FolderSearch.h"
#include "extendedPath.h"
#include "retry.h"
#include "systemCalls.h"

#include <cstdint>
#include <vector>

namespace Core::IO
{

namespace
{

std::wstring below(const std::wstring& folder, const wchar_t* name)
{
    return folder + L'\\' + name;
}

// What is read-only is refused at first.
bool removeFile(const std::wstring& path) noexcept
{
    return DeleteFileW(path.c_str()) ||
           (SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL) && DeleteFileW(path.c_str()));
}

// Of a link to a folder this removes the link.
bool removeFolder(const std::wstring& path) noexcept
{
    return RemoveDirectoryW(path.c_str()) ||
           (SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL) && RemoveDirectoryW(path.c_str()));
}

// A list of what is still to be done instead of recursion: somebody may have nested folders until no stack would do.
bool removeFolderWithContent(const std::wstring& folder)
{
    bool complete = true;
    std::vector<std::wstring> folders{folder};
    for (std::size_t index = 0; index < folders.size(); ++index)
    {
        const std::wstring parent = folders[index];
        for (FolderSearch search(parent); search; search.next())
        {
            const std::wstring path = below(parent, search->cFileName);
            if (!search.isFolder())
            {
                complete &= removeFile(path);
            }
            else if (search.isLink())
            {
                complete &= removeFolder(path);
            }
            else
            {
                folders.push_back(path);
            }
        }
    }
    // What is in a folder comes after it.
    for (; !folders.empty(); folders.pop_back())
    {
        complete &= removeFolder(folders.back());
    }
    return complete;
}

SystemError copyContent(HANDLE from, HANDLE to)
{
    std::vector<char> piece(1 << 20);
    for (;;)
    {
        DWORD count = 0;
        if (!ReadFile(from, piece.data(), static_cast<DWORD>(piece.size()), &count, nullptr))
        {
            return GetLastError();
        }
        if (count == 0)
        {
            return resultOf(FlushFileBuffers(to));
        }
        if (DWORD written = 0; !WriteFile(to, piece.data(), count, &written, nullptr))
        {
            return GetLastError();
        }
    }
}

class SystemFileTree final : public FileTree
{
  public:
    Kind kind(const String& path) const override
    {
        const DWORD attributes = GetFileAttributesW(extendedPath(path).c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES)
        {
            const DWORD error = GetLastError();
            return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION ? Kind::unknown : Kind::none;
        }
        if (!(attributes & FILE_ATTRIBUTE_DIRECTORY))
        {
            return Kind::file;
        }
        return attributes & FILE_ATTRIBUTE_REPARSE_POINT ? Kind::link : Kind::folder;
    }

    SystemError copy(const String& from, const String& to) const override
    {
        const platform::FileHandle source(CreateFileW(extendedPath(from).c_str(), GENERIC_READ,
                                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                                      OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
        if (!source)
        {
            return GetLastError();
        }
        // Made anew, and not by CopyFileW, which takes the attributes over, read-only among them.
        const std::wstring target = extendedPath(to);
        platform::FileHandle copy(
            CreateFileW(target.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!copy)
        {
            return GetLastError();
        }
        SystemError error = copyContent(source.get(), copy.get());
        if (const SystemError closing = resultOf(CloseHandle(copy.release())); !error)
        {
            error = closing;
        }
        if (error)
        {
            DeleteFileW(target.c_str());
        }
        return error;
    }

    SystemError makeFolder(const String& path) const override
    {
        return resultOf(CreateDirectoryW(extendedPath(path).c_str(), nullptr));
    }

    SystemError move(const String& from, const String& to) const override
    {
        const std::wstring source = extendedPath(from);
        const std::wstring target = extendedPath(to);
        return retry([&] { return resultOf(MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH)); },
                     isInUse, pause);
    }

    bool remove(const String& path) const override
    {
        switch (kind(path))
        {
        case Kind::none:
            return true;
        case Kind::file:
        case Kind::unknown:
            return removeFile(extendedPath(path));
        case Kind::link:
            return removeFolder(extendedPath(path));
        case Kind::folder:
            break;
        }
        return removeFolderWithContent(extendedPath(path));
    }

    void removeOld(const String& folder, bool (*isMeant)(const String&)) const override
    {
        constexpr std::uint64_t hour = 3'600ull * 10'000'000; // in file time units, 100 ns each
        FILETIME now{};
        GetSystemTimeAsFileTime(&now);
        for (FolderSearch search(extendedPath(folder)); search; search.next())
        {
            if (ticks(search->ftLastWriteTime) + hour < ticks(now) && isMeant(search->cFileName))
            {
                remove(below(folder.str(), search->cFileName));
            }
        }
    }
};

} // namespace

const FileTree& FileTree::system() noexcept
{
    static const SystemFileTree tree;
    return tree;
}

bool FileTree::isNotFound(SystemError error) noexcept
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

bool FileTree::isTaken(SystemError error) noexcept
{
    return error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS;
}

} // namespace Core::IO
