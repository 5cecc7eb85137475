#include "FolderFiles.h"

#include "FolderSearch.h"
#include "extendedPath.h"

namespace Core::IO
{

std::vector<String> fileNamesIn(const String& folder)
{
    std::vector<String> names;
    for (FolderSearch search(extendedPath(folder)); search; search.next())
    {
        // A link to a folder has the attribute too.
        if (!search.isFolder())
        {
            names.emplace_back(search->cFileName);
        }
    }
    return names;
}

bool removeFile(const String& path)
{
    return DeleteFileW(extendedPath(path).c_str());
}

} // namespace Core::IO
