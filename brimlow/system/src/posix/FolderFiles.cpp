#include "FolderFiles.h"

#include "PathSeparators.h"

#include <dirent.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace Core::IO
{

namespace
{

constexpr mode_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

bool isFolder(const std::string& folder, const dirent& entry)
{
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
    {
        return entry.d_type == DT_DIR;
    }
    struct stat status;
    return stat((folder + '/' + entry.d_name).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

std::vector<String> fileNamesIn(const String& folder)
{
    std::vector<String> names;
    const std::string path = toSystemPath(folder).toUtf8();
    const std::unique_ptr<DIR, int (*)(DIR*)> search(opendir(path.c_str()), closedir);
    if (!search)
    {
        return names;
    }
    while (const dirent* const entry = readdir(search.get()))
    {
        if (!isFolder(path, *entry))
        {
            names.push_back(String::fromUtf8(entry->d_name));
        }
    }
    return names;
}

bool removeFile(const String& path)
{
    const std::string file = toSystemPath(path).toUtf8();
    struct stat status;
    // The system itself would delete a read-only file.
    return lstat(file.c_str(), &status) == 0 && (status.st_mode & anyWrite) != 0 && !S_ISDIR(status.st_mode) &&
           unlink(file.c_str()) == 0;
}

} // namespace Core::IO
