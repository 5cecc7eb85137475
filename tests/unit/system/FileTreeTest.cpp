#include "brimlow/system/FileTree.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"

#ifdef _WIN32
#include "platform/handles.h"
#endif

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace
{

namespace fs = std::filesystem;
using Core::String;
using Core::IO::FileTree;
using Kind = FileTree::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

#ifdef _WIN32
// The standard library's own does not take folders here.
void setLastWrite(const fs::path& path, fs::file_time_type time)
{
    const auto before = std::chrono::duration_cast<std::chrono::seconds>(fs::file_time_type::clock::now() - time);
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    ULARGE_INTEGER ticks{{now.dwLowDateTime, now.dwHighDateTime}};
    ticks.QuadPart -= static_cast<ULONGLONG>(before.count()) * 10'000'000; // 100 ns each
    const FILETIME former{ticks.LowPart, ticks.HighPart};
    const platform::FileHandle file(CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr,
                                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    ASSERT_TRUE(SetFileTime(file.get(), nullptr, nullptr, &former));
}
#else
void setLastWrite(const fs::path& path, fs::file_time_type time)
{
    fs::last_write_time(path, time);
}
#endif

class FileTreeTest : public testing::Test
{
  protected:
    fs::path at(const char* name) const { return m_folder.folder() / name; }

    const FileTree& m_files = FileTree::system();
    const TemporaryFolder m_folder;
};

TEST_F(FileTreeTest, KnowsFilesFoldersAndNothing)
{
    m_folder.write(L"file", "");
    fs::create_directory(at("folder"));
    EXPECT_EQ(Kind::file, m_files.kind(m_folder.path(L"file")));
    EXPECT_EQ(Kind::folder, m_files.kind(m_folder.path(L"folder")));
    EXPECT_EQ(Kind::none, m_files.kind(m_folder.path(L"missing")));
    EXPECT_EQ(Kind::none, m_files.kind(m_folder.path(L"file\\below")));
    EXPECT_EQ(Kind::none, m_files.kind(L""));
}

TEST_F(FileTreeTest, CopiesIntoANewFileOnly)
{
    m_folder.write(L"from", "content");
    m_folder.write(L"taken", "taken");
    EXPECT_EQ(0u, m_files.copy(m_folder.path(L"from"), m_folder.path(L"to")));
    EXPECT_EQ("content", m_folder.read(L"to"));
    EXPECT_TRUE(FileTree::isTaken(m_files.copy(m_folder.path(L"from"), m_folder.path(L"taken"))));
    EXPECT_EQ("taken", m_folder.read(L"taken"));
    EXPECT_TRUE(FileTree::isNotFound(m_files.copy(m_folder.path(L"missing"), m_folder.path(L"new"))));
    EXPECT_TRUE(FileTree::isNotFound(m_files.copy(m_folder.path(L"from"), m_folder.path(L"missing\\new"))));
    EXPECT_NE(0u, m_files.copy(fromPath(m_folder.folder()), m_folder.path(L"new")));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"from", L"taken", L"to"));
}

TEST_F(FileTreeTest, CopiesWhatIsLargerThanTwoGigabytes)
{
    constexpr std::string_view end = "the end";
    m_folder.write(L"large", "the beginning");
    fs::resize_file(at("large"), (std::uintmax_t{1} << 31) + 1);
    std::ofstream(at("large"), std::ios::binary | std::ios::app) << end;
    EXPECT_EQ(0u, m_files.copy(m_folder.path(L"large"), m_folder.path(L"copy")));

    EXPECT_EQ(fs::file_size(at("large")), fs::file_size(at("copy")));
    std::ifstream copy(at("copy"), std::ios::binary);
    copy.seekg(-static_cast<std::streamoff>(end.size()), std::ios::end);
    std::string last(end.size(), ' ');
    copy.read(last.data(), static_cast<std::streamsize>(last.size()));
    EXPECT_EQ(end, last);
}

TEST_F(FileTreeTest, MakesNewFoldersOnly)
{
    EXPECT_EQ(0u, m_files.makeFolder(m_folder.path(L"new")));
    EXPECT_TRUE(fs::is_directory(at("new")));
    EXPECT_TRUE(FileTree::isTaken(m_files.makeFolder(m_folder.path(L"new"))));
    m_folder.write(L"file", "");
    EXPECT_TRUE(FileTree::isTaken(m_files.makeFolder(m_folder.path(L"file"))));
    EXPECT_TRUE(FileTree::isNotFound(m_files.makeFolder(m_folder.path(L"missing\\new"))));
}

TEST_F(FileTreeTest, MovesToFreeNamesOnly)
{
    m_folder.write(L"a", "a");
    m_folder.write(L"b", "b");
    fs::create_directories(at("folder/below"));
    fs::create_directory(at("empty"));
    EXPECT_EQ(0u, m_files.move(m_folder.path(L"folder"), m_folder.path(L"moved")));
    EXPECT_EQ(0u, m_files.move(m_folder.path(L"a"), m_folder.path(L"moved\\below\\c")));
    EXPECT_EQ("a", m_folder.read(L"moved/below/c"));
    EXPECT_TRUE(FileTree::isTaken(m_files.move(m_folder.path(L"moved\\below\\c"), m_folder.path(L"b"))));
    EXPECT_TRUE(FileTree::isTaken(m_files.move(m_folder.path(L"moved"), m_folder.path(L"empty"))));
    EXPECT_TRUE(FileTree::isTaken(m_files.move(m_folder.path(L"moved"), m_folder.path(L"b"))));
    EXPECT_TRUE(FileTree::isNotFound(m_files.move(m_folder.path(L"missing"), m_folder.path(L"new"))));
    EXPECT_TRUE(FileTree::isNotFound(m_files.move(m_folder.path(L"b"), m_folder.path(L"missing\\new"))));
    EXPECT_EQ("b", m_folder.read(L"b"));
}

TEST_F(FileTreeTest, ChangesTheCaseOfANameByAMove)
{
    m_folder.write(L"name", "x");
    fs::create_directory(at("folder"));
    EXPECT_EQ(0u, m_files.move(m_folder.path(L"name"), m_folder.path(L"NAME")));
    EXPECT_EQ(0u, m_files.move(m_folder.path(L"folder"), m_folder.path(L"Folder")));
    EXPECT_TRUE(fs::exists(at("NAME")));
    EXPECT_TRUE(fs::exists(at("Folder")));
#ifndef _WIN32
    // Wine says that it did, and leaves the case on the disk.
    EXPECT_THAT(m_folder.names(), ElementsAre(L"Folder", L"NAME"));
#endif
}

TEST_F(FileTreeTest, RemovesWhateverIsThere)
{
    m_folder.write(L"file", "");
    fs::permissions(at("file"), fs::perms::owner_read);
    fs::create_directories(at("folder/a/b"));
    fs::create_directories(at("folder/c"));
    for (const wchar_t* const name : {L"folder/1", L"folder/a/2", L"folder/a/b/3", L"folder/c/4"})
    {
        m_folder.write(name, "x");
        fs::permissions(toPath(m_folder.path(name)), fs::perms::owner_read);
    }
    EXPECT_TRUE(m_files.remove(m_folder.path(L"file")));
    EXPECT_TRUE(m_files.remove(m_folder.path(L"folder")));
    EXPECT_TRUE(m_files.remove(m_folder.path(L"missing")));
    EXPECT_THAT(m_folder.names(), IsEmpty());
}

// Folders in folders until no stack would do.
TEST_F(FileTreeTest, RemovesFoldersOfAnyDepth)
{
    std::wstring path = m_folder.path(L"deep").str();
    ASSERT_EQ(0u, m_files.makeFolder(path));
    for (int depth = 0; depth < 300; ++depth)
    {
        path += L"\\d";
        ASSERT_EQ(0u, m_files.makeFolder(path)) << depth;
    }
    EXPECT_TRUE(m_files.remove(m_folder.path(L"deep")));
    EXPECT_THAT(m_folder.names(), IsEmpty());
}

TEST_F(FileTreeTest, KnowsLinksToFolders)
{
    const TemporaryFolder elsewhere;
    const FolderLink link(elsewhere.folder(), at("link"));
    EXPECT_EQ(Kind::link, m_files.kind(m_folder.path(L"link")));
}

// Windows moves and removes the link. Wine moves what it points to.
#ifndef _WIN32
TEST_F(FileTreeTest, DoesNotFollowLinks)
{
    const TemporaryFolder elsewhere;
    elsewhere.write(L"precious", "x");
    fs::create_directories(at("folder/below"));
    fs::create_directory_symlink(elsewhere.folder(), at("link"));
    fs::create_directory_symlink(elsewhere.folder(), at("folder/below/link"));
    fs::create_symlink(elsewhere.folder() / "precious", at("file"));
    EXPECT_EQ(Kind::link, m_files.kind(m_folder.path(L"link")));
    EXPECT_EQ(Kind::file, m_files.kind(m_folder.path(L"file")));
    EXPECT_EQ(0u, m_files.move(m_folder.path(L"link"), m_folder.path(L"moved")));
    EXPECT_EQ(Kind::link, m_files.kind(m_folder.path(L"moved")));
    EXPECT_TRUE(m_files.remove(m_folder.path(L"moved")));
    EXPECT_TRUE(m_files.remove(m_folder.path(L"folder")));
    EXPECT_TRUE(m_files.remove(m_folder.path(L"file")));
    EXPECT_THAT(m_folder.names(), IsEmpty());
    EXPECT_THAT(elsewhere.names(), ElementsAre(L"precious"));
}
#endif

TEST_F(FileTreeTest, RemovesOldEntriesThatAreMeant)
{
    for (const wchar_t* const name : {L"old.x", L"other", L"new.x"})
    {
        m_folder.write(name, "");
    }
    fs::create_directory(at("folder.x"));
    m_folder.write(L"folder.x/file", "");
    for (const char* const name : {"old.x", "other", "folder.x"})
    {
        setLastWrite(at(name), fs::file_time_type::clock::now() - std::chrono::hours(2));
    }
    m_files.removeOld(fromPath(m_folder.folder()), [](const String& name) { return name.view().ends_with(u'x'); });
    m_files.removeOld(m_folder.path(L"missing"), [](const String&) { return true; });
    EXPECT_THAT(m_folder.names(), ElementsAre(L"new.x", L"other"));
}

} // namespace
