#include "FileOperations.h"

#include "privateAccess.h"
#include "systemCalls.h"

#include "platform/handles.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Core
{

String describeSystemError(SystemError error)
{
    platform::LocalMemory text;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_FROM_SYSTEM, nullptr, error,
        MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), reinterpret_cast<LPWSTR>(text.put()), 0, nullptr);
    std::wstring_view line(static_cast<const wchar_t*>(text.get()), length);
    while (!line.empty() &&
           (line.back() == L'.' || line.back() == L' ' || line.back() == L'\r' || line.back() == L'\n'))
    {
        line.remove_suffix(1);
    }
    return line.empty() ? L"error " + String(std::to_wstring(error)) : String(line);
}

namespace IO
{

namespace
{

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Fills descriptor with the access list of the file.
SystemError readAccessList(const String& path, std::vector<std::byte>& descriptor)
{
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    descriptor.resize(size);
    return resultOf(GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size));
}

class SystemFileOperations final : public FileOperations
{
  public:
    FileKind kind(const String& path) override
    {
        const DWORD attributes = GetFileAttributesW(path.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES)
        {
            return FileKind::None;
        }
        if (attributes & FILE_ATTRIBUTE_DIRECTORY)
        {
            return FileKind::Folder;
        }
        return attributes & FILE_ATTRIBUTE_READONLY ? FileKind::ReadOnlyFile : FileKind::File;
    }

    SystemError read(const String& path, std::string& content) override
    {
        // Sharing everything, delete included, lets another process replace the file meanwhile.
        const platform::FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, shareAll, nullptr, OPEN_EXISTING,
                                                    FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
        LARGE_INTEGER size{};
        if (!file || !GetFileSizeEx(file.get(), &size))
        {
            return GetLastError();
        }
        content.resize(static_cast<std::size_t>(size.QuadPart));
        std::size_t done = 0;
        while (done < content.size())
        {
            DWORD count = 0;
            if (!ReadFile(file.get(), content.data() + done, pieceOf(content.size() - done), &count, nullptr))
            {
                return GetLastError();
            }
            if (count == 0)
            {
                break;
            }
            done += count;
        }
        content.resize(done);
        return 0;
    }

    SystemError makeFolder(const String& folder) override
    {
        const SystemError error = resultOf(CreateDirectoryW(folder.c_str(), nullptr));
        return error == ERROR_ALREADY_EXISTS ? 0 : error;
    }

    SystemError createSide(const String& side, const String& model, Access ofNewFile) override
    {
        std::vector<std::byte> descriptor;
        platform::LocalMemory privateDescriptor;
        SECURITY_ATTRIBUTES attributes{sizeof attributes, nullptr, FALSE};
        if (!model.empty())
        {
            // ReplaceFileW would carry the access list over, but too late: until then the side file must not be more
            // open than its model.
            if (const SystemError error = readAccessList(model, descriptor))
            {
                return error;
            }
            attributes.lpSecurityDescriptor = descriptor.data();
        }
        else if (ofNewFile == Access::Private)
        {
            privateDescriptor = privateFileAccess();
            if (!privateDescriptor)
            {
                return GetLastError();
            }
            attributes.lpSecurityDescriptor = privateDescriptor.get();
        }
        m_side.reset(
            CreateFileW(side.c_str(), GENERIC_WRITE, 0, &attributes, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        return resultOf(static_cast<bool>(m_side));
    }

    SystemError write(std::string_view content) override
    {
        while (!content.empty())
        {
            DWORD count = 0;
            if (!WriteFile(m_side.get(), content.data(), pieceOf(content.size()), &count, nullptr))
            {
                return GetLastError();
            }
            content.remove_prefix(count);
        }
        return 0;
    }

    SystemError flush() override { return resultOf(FlushFileBuffers(m_side.get())); }

    SystemError close() override { return m_side ? resultOf(CloseHandle(m_side.release())) : 0; }

    SystemError replace(const String& target, const String& side, const String& backup) override
    {
        // Without a backup name error 1176 may mean that the target is gone. The access list is on the side file
        // already, so failing to merge it is no reason to fail.
        return resultOf(ReplaceFileW(target.c_str(), side.c_str(), backup.c_str(),
                                     REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS, nullptr,
                                     nullptr));
    }

    SystemError move(const String& from, const String& to) override
    {
        return resultOf(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH));
    }

    SystemError remove(const String& path) override { return resultOf(DeleteFileW(path.c_str())); }

    void removeOldSides(const String& path) override
    {
        constexpr std::uint64_t hour = 3'600ull * 10'000'000; // in file time units, 100 ns each
        FILETIME now{};
        GetSystemTimeAsFileTime(&now);

        const std::wstring pattern = path.str() + L".*.new";
        const std::wstring folder = pattern.substr(0, pattern.find_last_of(L"\\/") + 1);
        WIN32_FIND_DATAW found{};
        const HANDLE search = FindFirstFileW(pattern.c_str(), &found);
        if (search == INVALID_HANDLE_VALUE)
        {
            return;
        }
        do
        {
            if (ticks(found.ftLastWriteTime) + hour < ticks(now))
            {
                DeleteFileW((folder + found.cFileName).c_str());
            }
        } while (FindNextFileW(search, &found));
        FindClose(search);
    }

    bool isNotFound(SystemError error) const override
    {
        return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
    }

    bool mayPass(SystemError error) const override
    {
        switch (error)
        {
        // The states in which ReplaceFileW can stop; each leaves old and new content under some name.
        case ERROR_UNABLE_TO_REMOVE_REPLACED:
        case ERROR_UNABLE_TO_MOVE_REPLACEMENT:
        case ERROR_UNABLE_TO_MOVE_REPLACEMENT_2:
        // The target came or went between the look and the call.
        case ERROR_FILE_NOT_FOUND:
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return true;
        default:
            return isInUse(error);
        }
    }

    void pause() override { IO::pause(); }

  private:
    // As much as one call of the system takes.
    static DWORD pieceOf(std::size_t size) noexcept { return static_cast<DWORD>(std::min<std::size_t>(size, 1 << 24)); }

    platform::FileHandle m_side;
};

} // namespace

std::unique_ptr<FileOperations> makeSystemFileOperations()
{
    return std::make_unique<SystemFileOperations>();
}

} // namespace IO
} // namespace Core
