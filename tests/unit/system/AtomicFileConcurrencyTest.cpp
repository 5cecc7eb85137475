#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Exception.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#ifdef _WIN32
#include <windows.h>

#include "platform/handles.h"
#else
#include <fstream>
#include <iterator>
#endif

using Core::String;
using Core::IO::AtomicFile;
using testing::ElementsAre;

namespace
{

constexpr int saves = 150;

// A document whose length and every byte tell which one it is.
std::string document(int number)
{
    const auto length = static_cast<std::size_t>(20'000 + 100 * (number % 7));
    return std::string(length, static_cast<char>('a' + number % 7));
}

bool isDocument(const std::string& content)
{
    return !content.empty() && content == document(content[0] - 'a');
}

TEST(AtomicFileConcurrency, AReaderOfTheLibraryAlwaysFindsAWholeDocument)
{
    const TemporaryFolder folder;
    const String path = folder.path(L"a.config");
    AtomicFile::write(path, document(0));
    std::atomic<bool> done = false;
    std::atomic<int> reads = 0;
    int broken = 0;
    int missing = 0;
    std::string failure;
    std::thread reader(
        [&]
        {
            do
            {
                try
                {
                    missing += AtomicFile::exists(path) ? 0 : 1;
                    broken += isDocument(AtomicFile::read(path)) ? 0 : 1;
                }
                catch (const Core::Exception& exception)
                {
                    failure = exception.what();
                }
                ++reads;
            } while (!done);
        });
    for (int number = 0; number < saves; ++number)
    {
        AtomicFile::write(path, document(number));
    }
    done = true;
    reader.join();
    EXPECT_GT(reads, 0);
    EXPECT_EQ(0, broken);
    EXPECT_EQ(0, missing);
    EXPECT_EQ("", failure);
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
}

// What a program reads that knows nothing of the library and opens the file as polite programs do, sharing everything.
// It may be turned away in the instant of the replacement; then it gets nothing.
std::string readDirectly(const String& path)
{
#ifdef _WIN32
    const platform::FileHandle file(CreateFileW(path.c_str(), GENERIC_READ,
                                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                                OPEN_EXISTING, 0, nullptr));
    if (!file)
    {
        return {};
    }
    std::string content(100'000, '\0');
    DWORD count = 0;
    EXPECT_TRUE(ReadFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &count, nullptr));
    content.resize(count);
    return content;
#else
    std::ifstream file(toPath(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
#endif
}

TEST(AtomicFileConcurrency, AReaderThatKnowsNothingNeverSeesHalfADocument)
{
    const TemporaryFolder folder;
    const String path = folder.path(L"a.config");
    AtomicFile::write(path, document(0));
    std::atomic<bool> done = false;
    std::atomic<int> whole = 0;
    int broken = 0;
    std::thread reader(
        [&]
        {
            do
            {
                const std::string content = readDirectly(path);
                whole += isDocument(content) ? 1 : 0;
                broken += !content.empty() && !isDocument(content) ? 1 : 0;
            } while (!done || whole == 0);
        });
    for (int number = 0; number < saves; ++number)
    {
        AtomicFile::write(path, document(number));
    }
    done = true;
    reader.join();
    EXPECT_EQ(0, broken);
    EXPECT_EQ(document(saves - 1), AtomicFile::read(path));
}

TEST(AtomicFileConcurrency, TwoWritersDoNotDisturbEachOther)
{
    const TemporaryFolder folder;
    const String path = folder.path(L"a.config");
    std::string failures[2];
    const auto writeAll = [&](int writer)
    {
        try
        {
            for (int number = 0; number < saves / 3; ++number)
            {
                AtomicFile::write(path, document(number + writer));
            }
        }
        catch (const Core::Exception& exception)
        {
            failures[writer] = exception.what();
        }
    };
    std::thread other(writeAll, 1);
    writeAll(0);
    other.join();
    EXPECT_EQ("", failures[0]);
    EXPECT_EQ("", failures[1]);
    EXPECT_TRUE(isDocument(AtomicFile::read(path)));
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
}

} // namespace
