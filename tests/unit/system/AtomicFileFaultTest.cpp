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

} // namespace
