#include "brimlow/system/PrivateFile.h"

#include "FileOperations.h"
#include "PathSeparators.h"
#include "parentFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Core::IO
{

void makePrivateFile(const String& path)
{
    const String folder = parentFolder(path);
    makeParentFolders(folder, *makeSystemFileOperations());
    if (mkdir(toSystemPath(folder).toUtf8().c_str(), 0700) != 0 && errno != EEXIST)
    {
        throw IOException(L"The folder \"" + folder + L"\" cannot be made", static_cast<SystemError>(errno));
    }
    const int file = open(toSystemPath(path).toUtf8().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file >= 0)
    {
        close(file);
    }
    else if (errno != EEXIST)
    {
        throw IOException(L"The file \"" + path + L"\" cannot be made", static_cast<SystemError>(errno));
    }
}

} // namespace Core::IO
