#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/FileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Core::String;
using testing::ElementsAre;
using testing::IsEmpty;
namespace FileSystem = Core::IO::FileSystem;

namespace
{

class FolderFiles : public testing::Test
{
  protected:
    void makeFiles(std::initializer_list<const wchar_t*> names) const
    {
        for (const wchar_t* const name : names)
        {
            m_folder.write(name, "x");
        }
    }

    String folder() const { return fromPath(m_folder.folder()); }

    // The names that getFiles finds, in its order.
    std::vector<String> find(const wchar_t* pattern) const
    {
        std::vector<String> names;
        for (const String& path : FileSystem::getFiles(folder(), pattern))
        {
            names.push_back(FileSystem::getFileName(path));
        }
        return names;
    }

    const TemporaryFolder m_folder;
};

TEST_F(FolderFiles, AreGivenWithTheirFolder)
{
    makeFiles({L"a.log", L"b.log"});
    EXPECT_THAT(FileSystem::getFiles(folder(), L"*.log"),
                ElementsAre(m_folder.path(L"a.log"), m_folder.path(L"b.log")));
}

TEST_F(FolderFiles, OfAFolderWithSeparatorsAtItsEndHaveOneSeparator)
{
    makeFiles({L"a.log"});
    for (const wchar_t* const end : {L"\\", L"/", L"\\\\"})
    {
        EXPECT_THAT(FileSystem::getFiles(folder() + end, L"*.log"), ElementsAre(m_folder.path(L"a.log")));
    }
}

TEST_F(FolderFiles, MatchByTheWholeEndingWithoutRegardToCase)
{
    const struct
    {
        const wchar_t* name;
        bool isLog;
    } cases[] = {
        {L"plain.log", true},     {L"UPPER.LOG", true},  {L"mixed.LoG", true},    {L".log", true},
        {L"two.txt.log", true},   {L"dots..log", true},  {L"blank .log", true},   {L"\u65E5\u672C.log", true},
        {L"old.log1", false},     {L"old.logs", false},  {L"old.log.txt", false}, {L"old.lo", false},
        {L"log", false},          {L"alog", false},      {L"old.log~", false},    {L"old.l\u043Eg", false},
        {L"long.log_old", false}, {L"old.log.1", false},
    };
    for (const auto& [name, isLog] : cases)
    {
        const TemporaryFolder one;
        one.write(name, "");
        EXPECT_EQ(isLog ? 1u : 0u, FileSystem::getFiles(fromPath(one.folder()), L"*.log").size())
            << String(name).toUtf8();
        EXPECT_EQ(isLog ? 1u : 0u, FileSystem::getFiles(fromPath(one.folder()), L"*.LOG").size())
            << String(name).toUtf8();
    }
}

TEST_F(FolderFiles, AllMatchTheStarAlone)
{
    makeFiles({L"b", L"a.log", L".c"});
    EXPECT_THAT(find(L"*"), ElementsAre(L".c", L"a.log", L"b"));
}

TEST_F(FolderFiles, ComeInTheOrderOfTheirNamesInUpperCase)
{
    // In lower case "_" would come before the letters, and by the units as they are "Z" before "a".
    makeFiles({L"_.log", L"a.log", L"Z.log", L"\u00E4.log", L"B.log", L"10.log", L"9.log", L"\u00DF.log", L"a-1.log"});
    EXPECT_THAT(find(L"*.log"), ElementsAre(L"10.log", L"9.log", L"a-1.log", L"a.log", L"B.log", L"Z.log", L"_.log",
                                            L"\u00E4.log", L"\u00DF.log"));
}

TEST_F(FolderFiles, DoNotIncludeFolders)
{
    std::filesystem::create_directory(m_folder.folder() / "folder.log");
    makeFiles({L"file.log"});
    EXPECT_THAT(find(L"*.log"), ElementsAre(L"file.log"));
}

TEST_F(FolderFiles, AreNoneWhereThereIsNoFolder)
{
    makeFiles({L"file.log"});
    EXPECT_THAT(FileSystem::getFiles(m_folder.path(L"missing"), L"*.log"), IsEmpty());
    EXPECT_THAT(FileSystem::getFiles(m_folder.path(L"missing\\deeper"), L"*.log"), IsEmpty());
    EXPECT_THAT(FileSystem::getFiles(m_folder.path(L"file.log"), L"*.log"), IsEmpty())
        << "a file in place of the folder";
}

// Not of the current folder, which has nothing to do with it.
TEST_F(FolderFiles, AreNoneWithoutAName)
{
    makeFiles({L"file.log"});
    const auto former = std::filesystem::current_path();
    std::filesystem::current_path(m_folder.folder());
    const std::vector<String> found = FileSystem::getFiles(L"", L"*.log");
    std::filesystem::current_path(former);
    EXPECT_THAT(found, IsEmpty());
}

TEST_F(FolderFiles, OfARelativeFolderAreThoseBelowTheCurrentOne)
{
    std::filesystem::create_directory(m_folder.folder() / "logs");
    makeFiles({L"logs/a.log"});
    const auto former = std::filesystem::current_path();
    std::filesystem::current_path(m_folder.folder());
    const std::vector<String> found = FileSystem::getFiles(L"logs", L"*.log");
    std::filesystem::current_path(former);
    EXPECT_THAT(found, ElementsAre(FileSystem::combinePath(L"logs", L"a.log")));
}

TEST_F(FolderFiles, AreReadAnewEveryTime)
{
    makeFiles({L"a.log"});
    EXPECT_THAT(find(L"*.log"), ElementsAre(L"a.log"));
    makeFiles({L"b.log"});
    ASSERT_TRUE(FileSystem::deleteFile(m_folder.path(L"a.log")));
    EXPECT_THAT(find(L"*.log"), ElementsAre(L"b.log"));
}

TEST(GetFileName, IsWhatFollowsTheLastSeparator)
{
    const struct
    {
        const wchar_t* path;
        const wchar_t* name;
    } cases[] = {
        {L"C:\\Logs\\a.log", L"a.log"},
        {L"C:/Logs/a.log", L"a.log"},
        {L"C:\\Logs/a.log", L"a.log"},
        {L"a.log", L"a.log"},
        {L"\\a.log", L"a.log"},
        {L"C:\\Logs\\", L""},
        {L"\\\\server\\a.log", L"a.log"},
        {L"", L""},
        {L"C:\\\u65E5\\\u00C4\U0001F600.log", L"\u00C4\U0001F600.log"},
    };
    for (const auto& [path, name] : cases)
    {
        EXPECT_EQ(String(name), FileSystem::getFileName(path));
    }
}

TEST_F(FolderFiles, AreDeletedForGood)
{
    makeFiles({L"a.log", L"b.log", L"\u65E5\U0001F600.log"});
    EXPECT_TRUE(FileSystem::deleteFile(m_folder.path(L"a.log")));
    EXPECT_TRUE(FileSystem::deleteFile(m_folder.path(L"\u65E5\U0001F600.log")));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"b.log"));
}

TEST_F(FolderFiles, AreDeletedByAPathWithTwoSeparators)
{
    makeFiles({L"a.log"});
    EXPECT_TRUE(FileSystem::deleteFile(folder() + L"\\\\a.log"));
    EXPECT_THAT(m_folder.names(), IsEmpty());
}

TEST_F(FolderFiles, StayWhenTheyAreReadOnly)
{
    makeFiles({L"a.log"});
    std::filesystem::permissions(m_folder.folder() / "a.log", std::filesystem::perms::owner_read);
    EXPECT_FALSE(FileSystem::deleteFile(m_folder.path(L"a.log")));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"a.log"));
}

TEST_F(FolderFiles, DeletingDoesNotDeleteFolders)
{
    std::filesystem::create_directory(m_folder.folder() / "a.log");
    EXPECT_FALSE(FileSystem::deleteFile(m_folder.path(L"a.log")));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"a.log"));
}

TEST_F(FolderFiles, DeletingWhatIsNotThereFails)
{
    EXPECT_FALSE(FileSystem::deleteFile(m_folder.path(L"a.log")));
    EXPECT_FALSE(FileSystem::deleteFile(m_folder.path(L"missing\\a.log")));
    EXPECT_FALSE(FileSystem::deleteFile(L""));
}

#ifndef _WIN32
// Wine makes no links.
TEST_F(FolderFiles, IncludeLinksThatDoNotLeadToAFolder)
{
    makeFiles({L"file.txt"});
    std::filesystem::create_directory(m_folder.folder() / "folder");
    std::filesystem::create_symlink("file.txt", m_folder.folder() / "link.log");
    std::filesystem::create_symlink("missing", m_folder.folder() / "nowhere.log");
    std::filesystem::create_symlink("folder", m_folder.folder() / "folder.log");
    EXPECT_THAT(find(L"*.log"), ElementsAre(L"link.log", L"nowhere.log"));
}

TEST_F(FolderFiles, DeletingALinkLeavesWhatItLeadsTo)
{
    makeFiles({L"file.txt"});
    std::filesystem::create_symlink("file.txt", m_folder.folder() / "link.log");
    EXPECT_TRUE(FileSystem::deleteFile(m_folder.path(L"link.log")));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"file.txt"));
}

// Windows has one file where these are two.
TEST_F(FolderFiles, WhoseNamesDifferInCaseOnlyAreInOrderToo)
{
    makeFiles({L"a.log", L"A.log", L"a.LOG"});
    EXPECT_THAT(find(L"*.log"), ElementsAre(L"A.log", L"a.LOG", L"a.log"));
}
#endif

} // namespace
