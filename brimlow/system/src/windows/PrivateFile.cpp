#include "brimlow/system/PrivateFile.h"

#include "FileOperations.h"
#include "brimlow/system/FileSystem.h"
#include "parentFolder.h"
#include "privateAccess.h"

#include <utility>

namespace Core::IO
{

namespace
{

class AccessList
{
  public:
    explicit AccessList(platform::LocalMemory descriptor) : m_descriptor(std::move(descriptor))
    {
        if (!m_descriptor)
        {
            throw IOException(L"An access list cannot be made", GetLastError());
        }
        m_attributes.lpSecurityDescriptor = m_descriptor.get();
    }
    AccessList(const AccessList&) = delete;
    AccessList& operator=(const AccessList&) = delete;

    SECURITY_ATTRIBUTES* attributes() noexcept { return &m_attributes; }

  private:
    platform::LocalMemory m_descriptor;
    SECURITY_ATTRIBUTES m_attributes{sizeof m_attributes, nullptr, FALSE};
};

} // namespace

void makePrivateFile(const String& path)
{
    const String folder = parentFolder(path);
    makeParentFolders(folder, *makeSystemFileOperations());
    // Asked first, because Windows refuses to make the top of a drive as if access to it were denied.
    if (!FileSystem::folderExists(folder) &&
        !CreateDirectoryW(folder.c_str(), AccessList(privateFolderAccess()).attributes()) &&
        GetLastError() != ERROR_ALREADY_EXISTS)
    {
        throw IOException(L"The folder \"" + folder + L"\" cannot be made", GetLastError());
    }
    const platform::FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                                AccessList(privateFileAccess()).attributes(), CREATE_NEW,
                                                FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file && GetLastError() != ERROR_FILE_EXISTS)
    {
        throw IOException(L"The file \"" + path + L"\" cannot be made", GetLastError());
    }
}

} // namespace Core::IO
