#include "brimlow/system/FileTree.h"

#include "systemCalls.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace Core::IO
{

namespace
{

namespace fs = std::filesystem;

class Descriptor
{
  public:
    explicit Descriptor(int descriptor) noexcept : m_descriptor(descriptor) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (m_descriptor >= 0)
        {
            close(m_descriptor);
        }
    }

    int get() const noexcept { return m_descriptor; }
    explicit operator bool() const noexcept { return m_descriptor >= 0; }

  private:
    int m_descriptor;
};

SystemError writeAll(int file, std::string_view content)
{
    while (!content.empty())
    {
        const ssize_t count = write(file, content.data(), content.size());
        if (count < 0)
        {
            return static_cast<SystemError>(errno);
        }
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

SystemError copyContent(int from, int to)
{
    std::vector<char> piece(1 << 20);
    ssize_t count = 0;
    while ((count = read(from, piece.data(), piece.size())) > 0)
    {
        if (const SystemError error = writeAll(to, {piece.data(), static_cast<std::size_t>(count)}))
        {
            return error;
        }
    }
    return count < 0 ? static_cast<SystemError>(errno) : resultOf(fsync(to));
}

class SystemFileTree final : public FileTree
{
  public:
    Kind kind(const String& path) const override
    {
        std::error_code ignored;
        const fs::path file = systemPath(path);
        const fs::file_status status = fs::symlink_status(file, ignored);
        if (status.type() == fs::file_type::not_found)
        {
            return Kind::none;
        }
        if (!fs::exists(status))
        {
            return Kind::unknown;
        }
        if (fs::is_symlink(status))
        {
            return fs::is_directory(file, ignored) ? Kind::link : Kind::file;
        }
        return fs::is_directory(status) ? Kind::folder : Kind::file;
    }

    SystemError copy(const String& from, const String& to) const override
    {
        const Descriptor source(open(systemPath(from).c_str(), O_RDONLY | O_CLOEXEC));
        if (!source)
        {
            return static_cast<SystemError>(errno);
        }
        const std::string target = systemPath(to);
        const Descriptor copy(open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (!copy)
        {
            return static_cast<SystemError>(errno);
        }
        const SystemError error = copyContent(source.get(), copy.get());
        if (error)
        {
            unlink(target.c_str());
        }
        return error;
    }

    SystemError makeFolder(const String& path) const override
    {
        return resultOf(mkdir(systemPath(path).c_str(), 0777));
    }

    SystemError move(const String& from, const String& to) const override
    {
        // Unlike rename, this refuses a name that is taken.
        return resultOf(
            renameat2(AT_FDCWD, systemPath(from).c_str(), AT_FDCWD, systemPath(to).c_str(), RENAME_NOREPLACE));
    }

    bool remove(const String& path) const override
    {
        std::error_code error;
        fs::remove_all(systemPath(path), error);
        return !error;
    }

    void removeOld(const String& folder, bool (*isMeant)(const String&)) const override
    {
        const fs::file_time_type anHourAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
        std::error_code ignored;
        for (fs::directory_iterator entry(systemPath(folder), ignored); entry != fs::directory_iterator();
             entry.increment(ignored))
        {
            std::error_code unknown;
            if (isMeant(String::fromUtf8(entry->path().filename().native())) &&
                entry->last_write_time(unknown) < anHourAgo && !unknown)
            {
                fs::remove_all(*entry, ignored);
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
    return error == ENOENT || error == ENOTDIR;
}

bool FileTree::isTaken(SystemError error) noexcept
{
    return error == EEXIST;
}

} // namespace Core::IO
