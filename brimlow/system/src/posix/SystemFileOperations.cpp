#include "FileOperations.h"

#include "systemCalls.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace Core
{

String describeSystemError(SystemError error)
{
    return String::fromUtf8(std::generic_category().message(static_cast<int>(error)));
}

namespace IO
{

namespace
{

class SystemFileOperations final : public FileOperations
{
  public:
    ~SystemFileOperations() override { close(); }

    FileKind kind(const String& path) override
    {
        struct stat status;
        if (stat(systemPath(path).c_str(), &status) != 0)
        {
            return FileKind::None;
        }
        if (S_ISDIR(status.st_mode))
        {
            return FileKind::Folder;
        }
        return status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH) ? FileKind::File : FileKind::ReadOnlyFile;
    }

    SystemError read(const String& path, std::string& content) override
    {
        const int file = open(systemPath(path).c_str(), O_RDONLY | O_CLOEXEC);
        if (file < 0)
        {
            return static_cast<SystemError>(errno);
        }
        content.clear();
        char piece[1 << 16];
        ssize_t count = 0;
        while ((count = ::read(file, piece, sizeof piece)) > 0)
        {
            content.append(piece, static_cast<std::size_t>(count));
        }
        const SystemError error = count < 0 ? static_cast<SystemError>(errno) : 0;
        ::close(file);
        return error;
    }

    SystemError makeFolder(const String& folder) override
    {
        const SystemError error = resultOf(mkdir(systemPath(folder).c_str(), 0777));
        return error == EEXIST ? 0 : error;
    }

    SystemError createSide(const String& side, const String& model, Access ofNewFile) override
    {
        struct stat status;
        const bool hasModel = !model.empty();
        if (hasModel && stat(systemPath(model).c_str(), &status) != 0)
        {
            return static_cast<SystemError>(errno);
        }
        const mode_t mode = hasModel || ofNewFile == Access::Private ? 0600 : 0666;
        m_side = open(systemPath(side).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (m_side < 0)
        {
            return static_cast<SystemError>(errno);
        }
        const SystemError error = hasModel ? resultOf(fchmod(m_side, status.st_mode & 07777)) : 0;
        if (error)
        {
            close();
            remove(side);
        }
        return error;
    }

    SystemError write(std::string_view content) override
    {
        while (!content.empty())
        {
            const ssize_t count = ::write(m_side, content.data(), content.size());
            if (count < 0)
            {
                return static_cast<SystemError>(errno);
            }
            content.remove_prefix(static_cast<std::size_t>(count));
        }
        return 0;
    }

    SystemError flush() override { return resultOf(fsync(m_side)); }

    SystemError close() override
    {
        const int file = std::exchange(m_side, -1);
        return file < 0 ? 0 : resultOf(::close(file));
    }

    // One step here, in which a reader sees the old file or the new one; no backup is needed.
    SystemError replace(const String& target, const String& side, const String&) override
    {
        return resultOf(rename(systemPath(side).c_str(), systemPath(target).c_str()));
    }

    SystemError move(const String& from, const String& to) override
    {
        // In one step, and unlike rename this refuses a name that is taken.
        return resultOf(
            renameat2(AT_FDCWD, systemPath(from).c_str(), AT_FDCWD, systemPath(to).c_str(), RENAME_NOREPLACE));
    }

    SystemError remove(const String& path) override { return resultOf(unlink(systemPath(path).c_str())); }

    void removeOldSides(const String& path) override
    {
        const std::string file = systemPath(path);
        const std::size_t nameAt = file.find_last_of('/') + 1;
        const std::string folder = nameAt == 0 ? "./" : file.substr(0, nameAt);
        const std::string prefix = file.substr(nameAt) + ".";
        DIR* search = opendir(folder.c_str());
        if (!search)
        {
            return;
        }
        while (const dirent* found = readdir(search))
        {
            const std::string_view name = found->d_name;
            struct stat status;
            const std::string candidate = folder + std::string(name);
            if (name.starts_with(prefix) && name.ends_with(".new") && stat(candidate.c_str(), &status) == 0 &&
                status.st_mtime + 3600 < std::time(nullptr))
            {
                unlink(candidate.c_str());
            }
        }
        closedir(search);
    }

    bool isNotFound(SystemError error) const override { return error == ENOENT || error == ENOTDIR; }
    // The target came or went between the look and the call; nothing else is only a matter of waiting here.
    bool mayPass(SystemError error) const override { return error == EEXIST || error == ENOENT; }
    void pause() override { std::this_thread::sleep_for(std::chrono::milliseconds(100)); }

  private:
    int m_side = -1;
};

} // namespace

std::unique_ptr<FileOperations> makeSystemFileOperations()
{
    return std::make_unique<SystemFileOperations>();
}

} // namespace IO
} // namespace Core
