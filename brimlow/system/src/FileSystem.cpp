#include "brimlow/system/FileSystem.h"

#include "FileOperations.h"
#include "FolderFiles.h"
#include "PathSeparators.h"
#include "brimlow/system/AtomicFile.h"

#include <algorithm>
#include <utility>

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

String getFileName(const String& path)
{
    const auto begin = std::find_if(path.view().rbegin(), path.view().rend(), isSeparator);
    return path.view().substr(static_cast<std::size_t>(path.view().rend() - begin));
}

std::vector<String> getFiles(const String& folder, const String& pattern)
{
    if (folder.empty())
    {
        return {};
    }
    const String ending = String(pattern.view().substr(pattern.startsWith(L"*") ? 1 : 0)).toUpper();
    // With the form that they are compared in.
    std::vector<std::pair<String, String>> names;
    for (String& name : fileNamesIn(folder))
    {
        String upper = name.toUpper();
        if (upper.view().ends_with(ending.view()))
        {
            names.emplace_back(std::move(upper), std::move(name));
        }
    }
    std::sort(names.begin(), names.end());

    std::vector<String> paths;
    paths.reserve(names.size());
    for (const auto& [upper, name] : names)
    {
        paths.push_back(combinePath(folder, name));
    }
    return paths;
}

bool deleteFile(const String& path)
{
    return removeFile(path);
}

bool fileExists(const String& path)
{
    return AtomicFile::exists(path);
}

bool folderExists(const String& path)
{
    return makeSystemFileOperations()->kind(path) == FileKind::Folder;
}

} // namespace Core::IO::FileSystem
