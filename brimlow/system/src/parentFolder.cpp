#include "parentFolder.h"

#include "FileOperations.h"
#include "PathSeparators.h"

namespace Core::IO
{

String parentFolder(const String& path)
{
    String::View folder = path.view();
    while (!folder.empty() && !isSeparator(folder.back()))
    {
        folder.remove_suffix(1);
    }
    while (!folder.empty() && isSeparator(folder.back()))
    {
        folder.remove_suffix(1);
    }
    return folder;
}

void makeParentFolders(const String& path, FileOperations& operations)
{
    const String folder = parentFolder(path);
    if (folder.empty() || operations.kind(folder) == FileKind::Folder)
    {
        return;
    }
    makeParentFolders(folder, operations);
    if (const SystemError error = operations.makeFolder(folder))
    {
        throw IOException(L"The folder \"" + folder + L"\" cannot be made", error);
    }
}

} // namespace Core::IO
