#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/FileSystem.h"

#include "platform/handles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Core::String;
using testing::ElementsAre;
using testing::IsEmpty;
namespace FileSystem = Core::IO::FileSystem;

namespace
{

class FolderFilesOnWindows : public testing::Test
{
  protected:
    // Beyond the length that the system takes without the prefix.
    static std::wstring longer(const std::wstring& path) { return L"\\\\?\\" + path; }

    void makeFile(const std::wstring& path) const
    {
        ASSERT_TRUE(platform::FileHandle(
            CreateFileW(longer(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr)))
            << GetLastError();
    }

    // With the long way, which the test folder's own clean-up knows nothing of.
    void removeLong(const std::wstring& folder) const { EXPECT_TRUE(RemoveDirectoryW(longer(folder).c_str())); }

    const TemporaryFolder m_folder;
    const std::wstring m_path = m_folder.folder().wstring();
};

TEST_F(FolderFilesOnWindows, WorkInAFolderWithALongPath)
{
    std::vector<std::wstring> folders{m_path};
    for (int i = 0; i < 3; ++i)
    {
        folders.push_back(folders.back() + L'\\' + std::wstring(120, static_cast<wchar_t>(L'a' + i)));
        ASSERT_TRUE(CreateDirectoryW(longer(folders.back()).c_str(), nullptr));
    }
    const std::wstring file = folders.back() + L"\\a.log";
    makeFile(file);
    EXPECT_THAT(FileSystem::getFiles(folders.back(), L"*.log"), ElementsAre(file));
    EXPECT_TRUE(FileSystem::deleteFile(file));
    EXPECT_THAT(FileSystem::getFiles(folders.back(), L"*.log"), IsEmpty());
    for (; folders.size() > 1; folders.pop_back())
    {
        removeLong(folders.back());
    }
}

TEST_F(FolderFilesOnWindows, AreListedWhereTheFolderEndsWithASeparator)
{
    const std::wstring file = m_path + L"\\a.log";
    makeFile(file);
    EXPECT_THAT(FileSystem::getFiles(m_path + L"\\", L"*.log"), ElementsAre(file));
}

TEST_F(FolderFilesOnWindows, WithALongNameWorkInAFolderWithAShortPath)
{
    const std::wstring file = m_path + L'\\' + std::wstring(240, L'x') + L".log";
    ASSERT_GT(file.size(), static_cast<std::size_t>(MAX_PATH));
    makeFile(file);
    EXPECT_THAT(FileSystem::getFiles(m_path, L"*.log"), ElementsAre(file));
    EXPECT_TRUE(FileSystem::deleteFile(file));
    EXPECT_THAT(FileSystem::getFiles(m_path, L"*.log"), IsEmpty());
}

TEST_F(FolderFilesOnWindows, AreFoundByEveryFormOfTheFoldersPath)
{
    m_folder.write(L"a.log", "");
    std::wstring slashes = m_path;
    std::replace(slashes.begin(), slashes.end(), L'\\', L'/');
    for (const std::wstring& form :
         {m_path + L"\\.", m_path + L"\\other\\..", slashes, longer(m_path), L"\\\\.\\" + m_path})
    {
        const std::vector<String> files = FileSystem::getFiles(form, L"*.log");
        ASSERT_EQ(1u, files.size()) << String(form).toUtf8();
        EXPECT_TRUE(FileSystem::fileExists(files.front())) << files.front().toUtf8();
    }
    EXPECT_TRUE(FileSystem::deleteFile(longer(m_path) + L"\\a.log"));
}

TEST_F(FolderFilesOnWindows, AreNoneOfAServerThatIsNotThere)
{
    EXPECT_THAT(FileSystem::getFiles(L"\\\\no-such-server\\share\\Log\\", L"*.log"), IsEmpty());
    EXPECT_FALSE(FileSystem::deleteFile(L"\\\\no-such-server\\share\\Log\\a.log"));
}

// Characters that are none in a path must not make a pattern of it.
TEST_F(FolderFilesOnWindows, AreNoneOfAFolderThatCannotBe)
{
    m_folder.write(L"a.log", "");
    for (const wchar_t* const folder : {L"\\*", L"\\?", L"\\<>", L"\\a|b"})
    {
        EXPECT_THAT(FileSystem::getFiles(m_path + folder, L"*.log"), IsEmpty()) << String(folder).toUtf8();
    }
    EXPECT_FALSE(FileSystem::deleteFile(m_path + L"\\*.log"));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"a.log"));
}

TEST_F(FolderFilesOnWindows, StayWhileAProgramHasThemOpen)
{
    m_folder.write(L"a.log", "");
    const String file = m_folder.path(L"a.log");
    platform::FileHandle writer(
        CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(writer);
    EXPECT_THAT(FileSystem::getFiles(m_path, L"*.log"), ElementsAre(file));
    EXPECT_FALSE(FileSystem::deleteFile(file));
    writer.reset();
    EXPECT_TRUE(FileSystem::deleteFile(file));
}

} // namespace
