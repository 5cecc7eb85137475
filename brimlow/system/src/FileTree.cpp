#include "brimlow/system/FileTree.h"

#include "FileOperations.h"
#include "parentFolder.h"

namespace Core::IO
{

void FileTree::makeParentFolders(const String& path)
{
    IO::makeParentFolders(path, *makeSystemFileOperations());
}

} // namespace Core::IO
