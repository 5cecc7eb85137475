#include "brimlow/system/PrivateFile.h"

#include "FileOperations.h"
#include "brimlow/system/FileSystem.h"
#include "parentFolder.h"
#include "platform/handles.h"

#include <sddl.h>

namespace Core::IO
{

namespace
{

// "P" keeps the entries of the folder above out. BA is the group Administrators, SY is SYSTEM, FA is everything that
// can be done with a file; OICI hands the entry on to what is made in the folder.
constexpr wchar_t folderAccess[] = L"D:P(A;OICI;FA;;;BA)(A;OICI;FA;;;SY)";
constexpr wchar_t fileAccess[] = L"D:P(A;;FA;;;BA)(A;;FA;;;SY)";

class AccessList
{
  public:
    explicit AccessList(const wchar_t* text)
    {
        if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1, m_descriptor.put(), nullptr))
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
    if (!FileSystem::folderExists(folder) && !CreateDirectoryW(folder.c_str(), AccessList(folderAccess).attributes()) &&
        GetLastError() != ERROR_ALREADY_EXISTS)
    {
        throw IOException(L"The folder \"" + folder + L"\" cannot be made", GetLastError());
    }
    const platform::FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                                AccessList(fileAccess).attributes(), CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                                                nullptr));
    if (!file && GetLastError() != ERROR_FILE_EXISTS)
    {
        throw IOException(L"The file \"" + path + L"\" cannot be made", GetLastError());
    }
}

} // namespace Core::IO
