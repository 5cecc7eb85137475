#include "FileFaults.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/AtomicFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <csignal>
#include <unistd.h>
#endif

using Core::String;
using Core::SystemError;
using Core::IO::AtomicFile;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const std::string oldContent(1000, 'o');
const std::string newContent(2000, 'n');

// An error that no second attempt helps against.
#ifdef _WIN32
constexpr SystemError diskFull = ERROR_DISK_FULL;
#else
constexpr SystemError diskFull = ENOSPC;
#endif

// The states in which ReplaceFileW can stop.
constexpr SystemError nothingHappened = 1175;
constexpr SystemError bothNamesIntact = 1176;
constexpr SystemError oldOneUnderBackupName = 1177;

void expectNoFault(const TemporaryFolder& folder)
{
    AtomicFile::write(folder.path(L"a.config"), newContent);
    EXPECT_EQ(newContent, folder.read(L"a.config"));
}

// What is said when that call of a write fails: create, write, flush, close, replace.
String sentenceOfCall(const String& path, int call)
{
    const Core::IOException exception(
        call == 2   ? L"The file \"" + path + L"\" cannot be saved, a file beside it cannot be made"
        : call == 3 ? L"The file \"" + path + L"\" cannot be saved, its new content cannot be written"
        : call <= 5 ? L"The file \"" + path + L"\" cannot be saved, its new content cannot be brought to the disk"
                    : L"The file \"" + path + L"\" cannot be saved, it cannot be replaced",
        diskFull);
    return exception.getMessage();
}

// Writes with call number k failing, for every k, until a write meets no failure. 'expectAfter' looks at the folder
// after a failure.
template <class Prepare, class ExpectAfter>
int failEveryCall(Prepare prepare, ExpectAfter expectAfter)
{
    for (int failing = 1; failing < 50; ++failing)
    {
        const TemporaryFolder folder;
        prepare(folder);
        FileFaults faults([&](int call) { return call == failing ? diskFull : 0; });
        try
        {
            AtomicFile::write(folder.path(L"a.config"), newContent, faults);
            // Calls whose failure does no harm: removing what a crash left, and removing the backup.
            EXPECT_EQ(newContent, folder.read(L"a.config")) << "call " << failing;
        }
        catch (const Core::IOException& exception)
        {
            EXPECT_EQ(diskFull, exception.getSystemError());
            EXPECT_EQ(sentenceOfCall(folder.path(L"a.config"), failing), exception.getMessage());
            expectAfter(folder, failing);
        }
        if (faults.calls() < failing)
        {
            return failing - 1;
        }
        expectNoFault(folder);
    }
    ADD_FAILURE() << "a write has no end of calls";
    return 0;
}

TEST(AtomicFileFaults, AnyFailureLeavesTheOldFileWholeAndNothingBesideIt)
{
    const int calls = failEveryCall([](const TemporaryFolder& folder) { folder.write(L"a.config", oldContent); },
                                    [](const TemporaryFolder& folder, int failing)
                                    {
                                        EXPECT_EQ(oldContent, folder.read(L"a.config")) << "call " << failing;
                                        EXPECT_THAT(folder.names(), ElementsAre(L"a.config")) << "call " << failing;
                                    });
    EXPECT_EQ(7, calls); // old sides, create, write, flush, close, replace, remove backup
}

TEST(AtomicFileFaults, AnyFailureOfAFirstWriteLeavesNothing)
{
    const int calls = failEveryCall([](const TemporaryFolder&) {}, [](const TemporaryFolder& folder, int failing)
                                    { EXPECT_THAT(folder.names(), IsEmpty()) << "call " << failing; });
    EXPECT_EQ(7, calls);
}

TEST(AtomicFileFaults, AFailureToMakeAFolderNamesTheFolder)
{
    const TemporaryFolder folder;
    FileFaults faults([](int call) { return call == 1 ? diskFull : 0; });
    try
    {
        AtomicFile::write(folder.path(L"Brimlow\\a.config"), newContent, faults);
        FAIL() << "nothing thrown";
    }
    catch (const Core::IOException& exception)
    {
        EXPECT_EQ(diskFull, exception.getSystemError());
        EXPECT_TRUE(
            exception.getMessage().startsWith(L"The folder \"" + folder.path(L"Brimlow") + L"\" cannot be made: "))
            << exception.what();
        EXPECT_THAT(folder.names(), IsEmpty());
    }
}

TEST(AtomicFileFaults, ATargetThatIsBusyIsTriedAgain)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", oldContent);
    FileFaults faults([](int) { return 0; });
    faults.letPass(nothingHappened);
    int attempts = 0;
    int pauses = 0;
    faults.replaceBy([&](FileFaults& self, const String& target, const String& side, const String& backup)
                     { return ++attempts < 6 ? nothingHappened : self.real().replace(target, side, backup); });
    faults.pauseBy([&] { ++pauses; });
    AtomicFile::write(folder.path(L"a.config"), newContent, faults);
    EXPECT_EQ(6, attempts);
    EXPECT_EQ(5, pauses);
    EXPECT_EQ(newContent, folder.read(L"a.config"));
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
}

TEST(AtomicFileFaults, ATargetThatStaysBusyIsGivenUpAndStaysWhole)
{
    for (const SystemError error : {nothingHappened, bothNamesIntact})
    {
        const TemporaryFolder folder;
        folder.write(L"a.config", oldContent);
        FileFaults faults([](int) { return 0; });
        faults.letPass(error);
        int attempts = 0;
        faults.replaceBy([&](auto&&...) { return ++attempts, error; });
        EXPECT_THROW(AtomicFile::write(folder.path(L"a.config"), newContent, faults), Core::IOException);
        EXPECT_EQ(6, attempts);
        EXPECT_EQ(oldContent, folder.read(L"a.config"));
        EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
    }
}

TEST(AtomicFileFaults, AReplacementThatStoppedHalfWayIsFinished)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", oldContent);
    FileFaults faults([](int) { return 0; });
    faults.letPass(oldOneUnderBackupName);
    faults.replaceBy(
        [](FileFaults& self, const String& target, const String&, const String& backup)
        {
            EXPECT_EQ(0u, self.real().move(target, backup));
            return oldOneUnderBackupName;
        });
    AtomicFile::write(folder.path(L"a.config"), newContent, faults);
    EXPECT_EQ(newContent, folder.read(L"a.config"));
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
}

TEST(AtomicFileFaults, AReplacementThatStoppedHalfWayForGoodIsTakenBack)
{
    const TemporaryFolder folder;
    folder.write(L"a.config", oldContent);
    FileFaults faults([](int) { return 0; });
    faults.replaceBy(
        [](FileFaults& self, const String& target, const String&, const String& backup)
        {
            EXPECT_EQ(0u, self.real().move(target, backup));
            return diskFull;
        });
    EXPECT_THROW(AtomicFile::write(folder.path(L"a.config"), newContent, faults), Core::IOException);
    EXPECT_EQ(oldContent, folder.read(L"a.config"));
    EXPECT_THAT(folder.names(), ElementsAre(L"a.config"));
}

// Ends the process on the spot, as a power failure would: no destructor, no buffer, no exit handler.
[[noreturn]] void die()
{
#ifdef _WIN32
    TerminateProcess(GetCurrentProcess(), 42);
#else
    _exit(42);
#endif
    std::abort();
}

// Where the writing process dies: before a call, or in the middle of the replacement.
constexpr int inReplacement = 0;
constexpr int callsOfAWrite = 7;

void writeAndDie(const String& path, int where)
{
    FileFaults faults(
        [&](int call) -> SystemError
        {
            if (call == where)
            {
                die();
            }
            return 0;
        });
    if (where == inReplacement)
    {
        faults.replaceBy(
            [](FileFaults& self, const String& target, const String&, const String& backup) -> SystemError
            {
                self.real().move(target, backup);
                die();
            });
    }
    AtomicFile::write(path, newContent, faults);
}

// gtest runs the dying statement in a process of its own; on Windows that process runs the test anew up to there, so
// the folder's name must not change between the two.
class AtomicFileKill : public testing::TestWithParam<int>
{
  protected:
    AtomicFileKill() : m_folder(std::filesystem::temp_directory_path() / ("tessaro-kill-" + std::to_string(GetParam())))
    {
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
    }
    ~AtomicFileKill() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    String path() const { return fromPath(m_folder / "a.config"); }

    std::filesystem::path m_folder;
};

TEST_P(AtomicFileKill, LeavesTheOldFileOrTheNewOne)
{
    AtomicFile::write(path(), oldContent);
    EXPECT_EXIT(writeAndDie(path(), GetParam()), testing::ExitedWithCode(42), "");

    EXPECT_TRUE(AtomicFile::exists(path()));
    const std::string& expected = GetParam() == callsOfAWrite ? newContent : oldContent;
    EXPECT_EQ(expected, AtomicFile::read(path()));

    AtomicFile::write(path(), newContent);
    EXPECT_EQ(newContent, AtomicFile::read(path()));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "a.config.previous"));
}

INSTANTIATE_TEST_SUITE_P(EveryCall, AtomicFileKill, testing::Range(inReplacement, callsOfAWrite + 1));

} // namespace
