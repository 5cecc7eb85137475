#include "LockFile.h"

#include "brimlow/system/Exception.h"
#include "platform/handles.h"

namespace Security
{

struct LockFile::Handle
{
    platform::FileHandle file;
};

LockFile::LockFile(const Core::String& path) : m_handle(std::make_unique<Handle>())
{
    m_handle->file.reset(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                     FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!m_handle->file)
    {
        throw Core::IOException(L"The file \"" + path + L"\" cannot be opened", GetLastError());
    }
}

LockFile::~LockFile() = default;

bool LockFile::tryToHold()
{
    // The first byte stands for the file; it need not exist.
    OVERLAPPED beginning{};
    return LockFileEx(m_handle->file.get(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &beginning) !=
           FALSE;
}

} // namespace Security
