#include "brimlow/system/FileSystem.h"

#include "PathSeparators.h"
#include "brimlow/system/AtomicFile.h"

namespace Core::IO::FileSystem
{

String combinePath(const String& folder, const String& relativePath)
{
    String::View left = folder.view();
    String::View right = relativePath.view();
    if (left.empty() || right.empty())
    {
        return toSystemPath(folder + relativePath);
    }
    while (left.size() > 1 && isSeparator(left.back()))
    {
        left.remove_suffix(1);
    }
    while (!right.empty() && isSeparator(right.front()))
    {
        right.remove_prefix(1);
    }
    return toSystemPath(String(left) + (isSeparator(left.back()) ? L"" : L"\\") + String(right));
}

bool fileExists(const String& path)
{
    return AtomicFile::exists(path);
}

} // namespace Core::IO::FileSystem
