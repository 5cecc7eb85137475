// Any two lines as a folder and a name: a name that is accepted is one in its folder, and paths are compared by keys
// that are their own.

#include "checks.h"
#include "names.h"
#include "paths.h"
#include "rules.h"

#include "brimlow/hotfolder/HotFolder.h"
#include "brimlow/system/FileSystem.h"
#include "tmgmt/templates/rules/names.h"

using Core::String;
using Core::IO::FileSystem::combinePath;
using Core::IO::FileSystem::getFileName;

namespace
{

void checkName(const String& folder, const String& name)
{
    const auto refusal = Tessaro::nameRefusal(name);
    require(!refusal || !refusal->empty(), "a refusal has a reason");
    require(refusal || !TMgmt::hasForbiddenCharacter(name), "what a dialog refuses the library refuses");
    const String key = Tessaro::nameKey(name);
    require(Tessaro::nameKey(key) == key, "a key is its own");
    if (refusal)
    {
        return;
    }
    require(!HotFolders::containsSeparator(name) && name != L"." && name != L"..", "a name leads nowhere");
    require(!Tessaro::isTemporaryName(name), "a name is not a temporary one");
    require(getFileName(combinePath(folder, name)) == name, "a name is the last one of its path");
    require(getFileName(TMgmt::renamedPath(combinePath(folder, name), name, L"new")) == L"new",
            "what is renamed has its new name");
}

void checkPaths(const String& path, const String& other)
{
    const String key = HotFolders::comparisonKey(path);
    require(HotFolders::comparisonKey(key) == key, "a key of a path is its own");
    require(HotFolders::comparisonKey(path + L"\\") == key && HotFolders::comparisonKey(path + L"/") == key,
            "separators at the end do not count");
    const String last = HotFolders::lastComponent(path);
    require(path.find(last) != String::npos, "the last component is one of the path");
    require(!HotFolders::isFullPath(path) || HotFolders::isFullPath(combinePath(path, other)),
            "what is in a full path is full");

    HotFolders::HotFolder folder;
    folder.setFolder(path);
    folder.setOutputFolder(other);
    folder.setFileMatchPattern(other);
    String message;
    require(!folder.validate(false, message) || (HotFolders::isFullPath(path) && HotFolders::isFullPath(other)),
            "hot folders have full paths");
}

} // namespace

void checkNames(std::string_view content)
{
    const std::vector<String> lines = linesOf(content, 2);
    checkName(lines[0], lines[1]);
    checkPaths(lines[0], lines[1]);
}
