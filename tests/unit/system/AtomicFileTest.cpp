#include "brimlow/system/AtomicFile.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/Exception.h"
#include "refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

using Core::String;
using Core::IO::AtomicFile;
using testing::ElementsAre;

namespace
{

namespace fs = std::filesystem;

void makeOlder(const fs::path& file, std::chrono::minutes age)
{
    fs::last_write_time(file, fs::last_write_time(file) - age);
}

TEST(AtomicFile, MakesAFile)
{
    const TemporaryFolder folder;
    AtomicFile::write(folder.path(L"a.config"), "new");
    EXPECT_EQ("new", folder.read(L"a.config"));
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
}

TEST(AtomicFile, ReplacesAFile)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", "the old content");
    AtomicFile::write(folder.path(L"a.config"), "new");
    EXPECT_EQ("new", folder.read(L"a.config"));
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
}

TEST(AtomicFile, WritesAndReadsBytesAsTheyAre)
{
    const TemporaryFolder folder;
    std::string bytes;
    for (int value = 0; value < 3 * 256; ++value)
    {
        bytes += static_cast<char>(value);
    }
    for (const std::string& content :
         {std::string(), std::string("\r\n\n\x1A\0", 5), bytes, std::string(3'000'000, 'x')})
    {
        AtomicFile::write(folder.path(L"a.bin"), content);
        EXPECT_EQ(content, folder.read(L"a.bin"));
        EXPECT_EQ(content, AtomicFile::read(folder.path(L"a.bin")));
    }
}

TEST(AtomicFile, TakesNamesOfAnyScript)
{
    const TemporaryFolder folder;
    AtomicFile::write(folder.path(L"\u00C4 \u65E5\u672C \U0001F600.config"), "new");
    EXPECT_THAT(folder.names(), ElementsAre(L"\u00C4 \u65E5\u672C \U0001F600.config"));
    EXPECT_EQ("new", AtomicFile::read(folder.path(L"\u00C4 \u65E5\u672C \U0001F600.config")));
}

TEST(AtomicFile, MakesMissingParentFolders)
{
    const TemporaryFolder folder;
    AtomicFile::write(folder.path(L"Brimlow\\Common\\a.config"), "new");
    EXPECT_EQ("new", folder.read(L"Brimlow/Common/a.config"));
}

TEST(AtomicFile, AFileInTheWayOfAParentFolderIsReported)
{
    const TemporaryFolder folder;
    folder.write(L"Brimlow", "");
    EXPECT_THROW(AtomicFile::write(folder.path(L"Brimlow\\a.config"), "new"), Core::IOException);
    EXPECT_THAT(folder.names(), ElementsAre(L"Brimlow"));
}

TEST(AtomicFile, RefusesAReadOnlyFileAndSaysSo)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", "old");
    fs::permissions(folder.folder() / L"a.config",
                    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    try
    {
        AtomicFile::write(folder.path(L"a.config"), "new");
        FAIL() << "nothing thrown";
    }
    catch (const Core::IOException& exception)
    {
        EXPECT_EQ(L"The file \"" + folder.path(L"a.config") +
                      L"\" cannot be saved, because it is read-only. Remove its read-only attribute first.",
                  exception.getMessage());
    }
    EXPECT_EQ("old", folder.read(L"a.config"));
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
}

TEST(AtomicFile, RefusesAFolderAndSaysSo)
{
    const TemporaryFolder folder;
    fs::create_directory(folder.folder() / L"a.config");
    EXPECT_EQ(L"The file \"" + folder.path(L"a.config") +
                  L"\" cannot be saved, because there is a folder of that name.",
              refusal([&] { AtomicFile::write(folder.path(L"a.config"), "new"); }));
    EXPECT_TRUE(refusal([&] { AtomicFile::read(folder.path(L"a.config")); })
                    .startsWith(L"The file \"" + folder.path(L"a.config") + L"\" cannot be read: "));
    EXPECT_FALSE(AtomicFile::exists(folder.path(L"a.config")));
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
}

TEST(AtomicFile, ReadingAMissingFileNamesIt)
{
    const TemporaryFolder folder;
    try
    {
        AtomicFile::read(folder.path(L"a.config"));
        FAIL() << "nothing thrown";
    }
    catch (const Core::FileNotFoundException& exception)
    {
        EXPECT_EQ(L"The file \"" + folder.path(L"a.config") + L"\" does not exist.", exception.getMessage());
    }
}

TEST(AtomicFile, ReadsTheBackupWhileTheFileIsMissing)
{
    const TemporaryFolder folder;
    folder.write(L"a.config.previous", "old");
    EXPECT_TRUE(AtomicFile::exists(folder.path(L"a.config")));
    EXPECT_EQ("old", AtomicFile::read(folder.path(L"a.config")));
}

TEST(AtomicFile, PassesOverTheBackupWhileTheFileIsThere)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", "new");
    folder.write(L"a.config.previous", "old");
    EXPECT_EQ("new", AtomicFile::read(folder.path(L"a.config")));
}

TEST(AtomicFile, AWriteRemovesTheBackupThatACrashLeft)
{
    for (const bool isFileThere : {false, true})
    {
        const TemporaryFolder folder;
        folder.write(L"a.config.previous", "older");
        if (isFileThere)
        {
            folder.write(L"a.config", "old");
        }
        AtomicFile::write(folder.path(L"a.config"), "new");
        EXPECT_EQ("new", folder.read(L"a.config"));
        EXPECT_THAT(folder.names(), ElementsAre(L"a.config")) << isFileThere;
    }
}

TEST(AtomicFile, AWriteRemovesSideFilesThatACrashLeftOnceTheyAreOld)
{
    const TemporaryFolder folder;
    folder.write(L"a.config.1.new", "half");
    folder.write(L"a.config.2.new", "of a write that still runs");
    folder.write(L"b.config.3.new", "of another file");
    folder.write(L"a.config.new.txt", "not ours");
    for (const wchar_t* name : {L"a.config.1.new", L"b.config.3.new", L"a.config.new.txt"})
    {
        makeOlder(folder.folder() / name, std::chrono::minutes(61));
    }
    makeOlder(folder.folder() / L"a.config.2.new", std::chrono::minutes(59));
    AtomicFile::write(folder.path(L"a.config"), "new");
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config", L"a.config.2.new", L"a.config.new.txt", L"b.config.3.new"));
}

#ifndef _WIN32
TEST(AtomicFile, KeepsThePermissionsOfTheFile)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", "old");
    const fs::perms ownerAndGroup = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(folder.folder() / L"a.config", ownerAndGroup);
    AtomicFile::write(folder.path(L"a.config"), "new");
    EXPECT_EQ(ownerAndGroup, fs::status(folder.folder() / L"a.config").permissions());
}
#endif

} // namespace
