#include "brimlow/system/FileSystem.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

using Core::String;
namespace FileSystem = Core::IO::FileSystem;

namespace
{

// The separator of the system, in which expected paths are written.
String inSystemForm(std::wstring path)
{
#ifndef _WIN32
    for (wchar_t& unit : path)
    {
        unit = unit == L'\\' ? L'/' : unit;
    }
#endif
    return path;
}

TEST(CombinePath, PutsExactlyOneSeparatorBetween)
{
    const struct
    {
        const wchar_t* folder;
        const wchar_t* relative;
        const wchar_t* path;
    } cases[] = {
        {L"C:\\Data", L"Brimlow\\TSvc.config", L"C:\\Data\\Brimlow\\TSvc.config"},
        {L"C:\\Data\\", L"a.log", L"C:\\Data\\a.log"},
        {L"C:\\Data", L"\\a.log", L"C:\\Data\\a.log"},
        {L"C:\\Data\\\\", L"\\a.log", L"C:\\Data\\a.log"},
        {L"C:\\", L"a", L"C:\\a"},
        {L"\\", L"a", L"\\a"},
        {L"", L"a", L"a"},
        {L"C:\\Data", L"", L"C:\\Data"},
        {L"", L"", L""},
        {L"\\\\server\\share", L"a", L"\\\\server\\share\\a"},
        {L"\u00C4\U0001F600", L"\u65E5", L"\u00C4\U0001F600\\\u65E5"},
    };
    for (const auto& [folder, relative, path] : cases)
    {
        EXPECT_EQ(inSystemForm(path), FileSystem::combinePath(folder, relative));
    }
}

TEST(FileExists, TellsFilesFromFoldersAndNothing)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", "");
    EXPECT_TRUE(FileSystem::fileExists(folder.path(L"a.config")));
    EXPECT_FALSE(FileSystem::fileExists(folder.path(L"b.config")));
    EXPECT_FALSE(FileSystem::fileExists(folder.path(L"b\\b.config")));
    EXPECT_FALSE(FileSystem::fileExists(fromPath(folder.folder())));
    EXPECT_FALSE(FileSystem::fileExists(L""));
}

TEST(FileExists, CountsAFileWhoseReplacementWasInterrupted)
{
    const TemporaryFolder folder;
    folder.write(L"a.config.previous", "old");
    EXPECT_TRUE(FileSystem::fileExists(folder.path(L"a.config")));
}

TEST(FolderExists, TellsFoldersFromFilesAndNothing)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", "");
    EXPECT_TRUE(FileSystem::folderExists(fromPath(folder.folder())));
    EXPECT_FALSE(FileSystem::folderExists(folder.path(L"a.config")));
    EXPECT_FALSE(FileSystem::folderExists(folder.path(L"b")));
    EXPECT_FALSE(FileSystem::folderExists(L""));
}

} // namespace
