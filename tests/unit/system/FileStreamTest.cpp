#include "brimlow/system/FileStream.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/Encoder.h"
#include "brimlow/system/Exception.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Core::String;
using Core::IO::FileStream;

namespace
{

TEST(FileStream, PutsWhatWasWrittenIntoTheFileWhenItIsFlushed)
{
    const TemporaryFolder folder;
    FileStream file(folder.path(L"request.txt"));
    file.write("first\r\n");
    file.write(std::string_view("\0\xFF", 2));
    EXPECT_TRUE(folder.names().empty()) << "nothing is there before";
    file.flush();
    EXPECT_EQ(std::string("first\r\n\0\xFF", 9), folder.read(L"request.txt"));
}

TEST(FileStream, GoesOnAfterAFlush)
{
    const TemporaryFolder folder;
    FileStream file(folder.path(L"request.txt"));
    file.write("one");
    file.flush();
    file.write(" and two");
    file.flush();
    EXPECT_EQ("one and two", folder.read(L"request.txt"));
}

TEST(FileStream, ReplacesAFormerFileWhole)
{
    const TemporaryFolder folder;
    folder.write(L"request.txt", "a longer text that was there before");
    FileStream file(folder.path(L"request.txt"));
    file.write("new");
    file.flush();
    EXPECT_EQ("new", folder.read(L"request.txt"));
    EXPECT_EQ(std::vector<String>{L"request.txt"}, folder.names()) << "nothing is left beside it";
}

TEST(FileStream, ThatIsNeverFlushedLeavesAFormerFileAlone)
{
    const TemporaryFolder folder;
    folder.write(L"request.txt", "old");
    {
        FileStream file(folder.path(L"request.txt"));
        file.write("half of the n");
    }
    EXPECT_EQ("old", folder.read(L"request.txt"));
    EXPECT_EQ(std::vector<String>{L"request.txt"}, folder.names());
}

TEST(FileStream, WithNothingWrittenMakesAnEmptyFile)
{
    const TemporaryFolder folder;
    FileStream(folder.path(L"request.txt")).flush();
    EXPECT_EQ("", folder.read(L"request.txt"));
}

TEST(FileStream, RefusesAnEmptyName)
{
    try
    {
        FileStream file(L"");
        ADD_FAILURE() << "it was taken";
    }
    catch (const Core::IOException& exception)
    {
        EXPECT_EQ(String(L"There is no name of a file to write. Please enter one."), exception.getMessage());
    }
}

TEST(FileStream, NamesAFileThatCannotBeWritten)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.folder() / "request.txt");
    FileStream file(folder.path(L"request.txt"));
    file.write("text");
    try
    {
        file.flush();
        ADD_FAILURE() << "it was written";
    }
    catch (const Core::IOException& exception)
    {
        EXPECT_NE(String::npos, exception.getMessage().find(folder.path(L"request.txt")));
    }
}

TEST(Encoder, WritesUtf8WithoutAByteOrderMark)
{
    EXPECT_EQ("-----BEGIN\r\n", Core::Encoder::convertStringToUTF8(L"-----BEGIN\r\n"));
    EXPECT_EQ("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x94\x92", Core::Encoder::convertStringToUTF8(u"\u00E9\u20AC\U0001F512"));
    EXPECT_EQ("", Core::Encoder::convertStringToUTF8(L""));
}

} // namespace
