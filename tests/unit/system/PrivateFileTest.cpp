#include "brimlow/system/PrivateFile.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/FileSystem.h"
#include "refusal.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#ifdef _WIN32
#include "platform/handles.h"

#include <aclapi.h>
#include <sddl.h>
#else
#include <sys/stat.h>
#endif

namespace
{

using Core::IO::AtomicFile;
using Core::IO::makePrivateFile;
using Core::IO::FileSystem::combinePath;

#ifdef _WIN32
std::wstring accessList(const std::filesystem::path& path)
{
    platform::LocalMemory descriptor;
    PACL entries = nullptr;
    EXPECT_EQ(DWORD{ERROR_SUCCESS},
              GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &entries,
                                    nullptr, reinterpret_cast<PSECURITY_DESCRIPTOR*>(descriptor.put())));
    platform::LocalMemory text;
    EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(
        descriptor.get(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, reinterpret_cast<LPWSTR*>(text.put()), nullptr));
    return static_cast<const wchar_t*>(text.get());
}

// Whether the access list has an entry for everyone, all users or all who logged on. Wine keeps no more of a list than
// what owner and everyone may do, so that more cannot be asked.
bool isOpenToOthers(const std::filesystem::path& path)
{
    const std::wstring list = accessList(path);
    return list.find(L";WD)") != list.npos || list.find(L";BU)") != list.npos || list.find(L";AU)") != list.npos;
}
#else
bool isOpenToOthers(const std::filesystem::path& path)
{
    struct stat status
    {
    };
    EXPECT_EQ(0, stat(path.c_str(), &status));
    return status.st_mode & 077;
}
#endif

TEST(PrivateFile, IsForAdministratorsOnlyAndSoIsItsNewFolder)
{
    const TemporaryFolder disk;
    makePrivateFile(combinePath(disk.path(L"a"), L"b\\c.db"));
    EXPECT_FALSE(isOpenToOthers(disk.folder() / "a" / "b" / "c.db"));
    EXPECT_FALSE(isOpenToOthers(disk.folder() / "a" / "b"));
    EXPECT_TRUE(isOpenToOthers(disk.folder() / "a"));
    EXPECT_EQ(0u, std::filesystem::file_size(disk.folder() / "a" / "b" / "c.db"));
}

TEST(PrivateFile, LeavesWhatIsThereAsItIs)
{
    const TemporaryFolder disk;
    disk.write(L"c.db", "content");
    makePrivateFile(disk.path(L"c.db"));
    EXPECT_EQ("content", disk.read(L"c.db"));
    EXPECT_TRUE(isOpenToOthers(disk.folder()));
    EXPECT_TRUE(isOpenToOthers(disk.folder() / "c.db"));
    makePrivateFile(disk.path(L"new.db"));
    EXPECT_TRUE(isOpenToOthers(disk.folder()));
    EXPECT_FALSE(isOpenToOthers(disk.folder() / "new.db"));
}

TEST(PrivateFile, IsWhatIsWrittenAsOneWhereNoFileWas)
{
    const TemporaryFolder disk;
    disk.write(L"old.p12", "old");
    AtomicFile::write(disk.path(L"new.p12"), "new", Core::IO::Access::Private);
    AtomicFile::write(disk.path(L"old.p12"), "new", Core::IO::Access::Private);
    EXPECT_FALSE(isOpenToOthers(disk.folder() / "new.p12"));
    EXPECT_TRUE(isOpenToOthers(disk.folder() / "old.p12"));
}

TEST(PrivateFile, CannotBeMadeWhereAFileIsInTheWay)
{
    const TemporaryFolder disk;
    disk.write(L"a", "");
    EXPECT_THROW(makePrivateFile(combinePath(disk.path(L"a"), L"c.db")), Core::IOException);
    EXPECT_THROW(makePrivateFile(combinePath(disk.path(L"a"), L"b\\c.db")), Core::IOException);
}

TEST(PrivateFile, CannotBeMadeUnderANameThatNoFileCanHave)
{
    const TemporaryFolder disk;
    const Core::String path = disk.path(std::wstring(300, L'x').c_str());
    EXPECT_TRUE(refusal([&] { makePrivateFile(path); }).startsWith(L"The file \"" + path + L"\" cannot be made: "));
}

} // namespace
