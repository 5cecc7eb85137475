#include "LockFile.h"

#include "brimlow/system/Exception.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

namespace Security
{

struct LockFile::Handle
{
    int file;
};

LockFile::LockFile(const Core::String& path) : m_handle(std::make_unique<Handle>())
{
    std::string systemPath = path.toUtf8();
    std::replace(systemPath.begin(), systemPath.end(), '\\', '/');
    m_handle->file = open(systemPath.c_str(), O_RDWR | O_CLOEXEC);
    if (m_handle->file < 0)
    {
        throw Core::IOException(L"The file \"" + path + L"\" cannot be opened", static_cast<Core::SystemError>(errno));
    }
}

LockFile::~LockFile()
{
    close(m_handle->file);
}

bool LockFile::tryToHold()
{
    return flock(m_handle->file, LOCK_EX | LOCK_NB) == 0;
}

} // namespace Security
