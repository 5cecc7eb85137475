#include "fonts_logs/LogsTest.h"
#include "kit/ImportSpy.h"
#include "kit/windows.h"
#include "platform/handles.h"

namespace Acceptance
{
namespace
{

using Listing = ImportSpy<"FindFirstFileExW", decltype(FindFirstFileExW)>;
using Waiting = ImportSpy<"WaitForSingleObject", decltype(WaitForSingleObject)>;
using Threads = ImportSpy<"CreateThread", decltype(CreateThread)>;

// Which folder the log files are taken from.
class LogFolderOfTheSetting : public LogsTest
{
};

struct Form
{
    const char* name;
    // %1 stands for the common application data folder.
    const wchar_t* value;
};

void PrintTo(const Form& form, std::ostream* out)
{
    *out << form.name;
}

class LogFolderForm : public LogsTest, public testing::WithParamInterface<Form>
{
};

// Listing, opening and deleting find the file, whatever form the setting has.
TEST_P(LogFolderForm, works)
{
    std::wstring value = GetParam().value;
    if (const std::size_t place = value.find(L"%1"); place != std::wstring::npos)
    {
        value.replace(place, 2, ServerFiles::folder().parent_path().wstring());
    }
    write(L"a.log", otherFolder());
    write(L"b.log", otherFolder());
    setFolder(value);
    openLogs();
    EXPECT_EQ((Names{L"a.log", L"b.log"}), listed());
    view().pressDelete(L"a.log");
    EXPECT_EQ(Names{L"b.log"}, names(otherFolder()));
    EXPECT_EQ(Names{L"b.log"}, listed());
    view().runNodeCommand(logFiles, deleteAll);
    EXPECT_EQ(Names{}, names(otherFolder()));
    EXPECT_EQ(Names{}, listed());
}

INSTANTIATE_TEST_SUITE_P(Forms, LogFolderForm,
                         testing::Values(Form{"PlaceholderAndSeparator", L"%APP_DATA%\\Brimlow\\Other\\"},
                                         Form{"PlaceholderAlone", L"%APP_DATA%\\Brimlow\\Other"},
                                         Form{"PlaceholderAndSlashes", L"%APP_DATA%/Brimlow/Other/"},
                                         Form{"Absolute", L"%1\\Brimlow\\Other"},
                                         Form{"AbsoluteAndSeparator", L"%1\\Brimlow\\Other\\"},
                                         Form{"SeveralSeparators", L"%1\\Brimlow\\Other\\\\"},
                                         Form{"WithAWayBack", L"%APP_DATA%\\Brimlow\\Log\\..\\Other"},
                                         Form{"PlaceholderInside", L"\\\\?\\%APP_DATA%\\Brimlow\\Other"}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(LogFolderOfTheSetting, isTheDefaultWithoutTheSetting)
{
    write(L"a.log");
    ServerFiles::write(ServerFiles::configuration(),
                       ServerFiles::configurationWith("    <add key=\"ServerPort\" value=\"2000\"/>\r\n"));
    openLogs();
    EXPECT_EQ(Names{L"a.log"}, listed());
}

// Nothing of the folder that the console happens to be in is listed or deleted.
TEST_F(LogFolderOfTheSetting, isNoneWhenItIsEmpty)
{
    write(L"a.log", otherFolder());
    setFolder(L"");
    const auto former = std::filesystem::current_path();
    std::filesystem::current_path(otherFolder());
    openLogs();
    EXPECT_EQ(Names{}, listed());
    view().runNodeCommand(logFiles, deleteAll);
    std::filesystem::current_path(former);
    EXPECT_EQ(Names{L"a.log"}, names(otherFolder()));
}

TEST_F(LogFolderOfTheSetting, isBelowTheCurrentOneWhenItIsRelative)
{
    write(L"a.log", otherFolder());
    setFolder(L"Other");
    const auto former = std::filesystem::current_path();
    std::filesystem::current_path(ServerFiles::folder());
    openLogs();
    EXPECT_EQ(Names{L"a.log"}, listed());
    view().pressDelete(L"a.log");
    std::filesystem::current_path(former);
    EXPECT_EQ(Names{}, names(otherFolder()));
}

TEST_F(LogFolderOfTheSetting, isAskedForAnewByEveryOperation)
{
    write(L"same.log");
    write(L"first.log");
    write(L"same.log", otherFolder());
    write(L"second.log", otherFolder());
    openLogs();
    setFolder(otherFolder().wstring());
    EXPECT_EQ((Names{L"first.log", L"same.log"}), listed());
    view().pressDelete(L"same.log");
    EXPECT_EQ((Names{L"first.log", L"same.log"}), names());
    EXPECT_EQ(Names{L"second.log"}, names(otherFolder()));
    EXPECT_EQ(Names{L"second.log"}, listed());
    setFolder(defaultFolder().wstring());
    view().runNodeCommand(logFiles, deleteAll);
    EXPECT_EQ(Names{}, names());
    EXPECT_EQ(Names{L"second.log"}, names(otherFolder()));
    EXPECT_EQ(Names{}, listed());
}

// A local disk answers, or the machine does not either.
TEST_F(LogFolderOfTheSetting, isReadWithoutAThreadWhenItIsLocal)
{
    write(L"a.log");
    open();
    Threads threads;
    view().select(logFiles);
    EXPECT_EQ(Names{L"a.log"}, listed());
    EXPECT_EQ(0, threads.calls());
}

// Wine takes long paths in any form, Windows in this one only.
TEST_F(LogFolderOfTheSetting, isGivenToTheSystemInTheFormThatMayBeLong)
{
    write(L"a.log");
    open();
    const auto begins = [](std::wstring_view path, std::wstring_view beginning)
    { EXPECT_TRUE(path.starts_with(beginning)) << narrow(std::wstring(path)); };
    std::wstring_view beginning = L"\\\\?\\C:\\";
    Listing listing(
        [&](LPCWSTR pattern, auto... rest)
        {
            begins(pattern, beginning);
            return listing.callThrough(pattern, rest...);
        });
    ImportSpy<"DeleteFileW", decltype(DeleteFileW)> deletion(
        [&](LPCWSTR file)
        {
            begins(file, beginning);
            return deletion.callThrough(file);
        });
    view().select(logFiles);
    view().pressDelete(L"a.log");
    EXPECT_EQ(2, listing.calls());
    EXPECT_EQ(1, deletion.calls());
    beginning = L"\\\\?\\UNC\\no-such-server\\share\\";
    setFolder(L"\\\\no-such-server\\share");
    showAgain();
    EXPECT_EQ(3, listing.calls());
}

// A path that begins as one on another machine. Reading it is held up until the test lets it go on.
class LogFolderThatDoesNotAnswer : public LogsTest
{
  protected:
    static constexpr DWORD patience = 10'000; // milliseconds

    void SetUp() override
    {
        LogsTest::SetUp();
        write(L"a.log");
        setFolder(L"\\\\?\\" + defaultFolder().wstring());
        open();
    }

    void letItAnswer() const { SetEvent(m_answers.get()); }

    Listing::Observer slowListing(const Listing& listing) const
    {
        return [this, &listing](auto... arguments)
        {
            WaitForSingleObject(m_answers.get(), INFINITE);
            return listing.callThrough(arguments...);
        };
    }

    // The first listing, which would not come, is not waited for.
    Waiting::Observer shortWaits(const Waiting& waiting)
    {
        return [this, &waiting](HANDLE handle, DWORD limit)
        {
            const bool isFirst = limit == patience && ++m_patientWaits == 1;
            return waiting.callThrough(handle, isFirst ? 0 : limit);
        };
    }

    int m_patientWaits = 0;

  private:
    platform::KernelHandle m_answers{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
};

TEST_F(LogFolderThatDoesNotAnswer, isEmptyAfterTenSecondsAndThenAtOnceUntilItDoes)
{
    Listing listing(slowListing(listing));
    Waiting waiting(shortWaits(waiting));
    view().select(logFiles);
    EXPECT_EQ(Names{}, listed());
    EXPECT_EQ(1, m_patientWaits);
    showAgain();
    EXPECT_EQ(Names{}, listed());
    view().runNodeCommand(logFiles, deleteAll);
    EXPECT_EQ(1, m_patientWaits) << "the first call is still out";
    EXPECT_EQ(Names{L"a.log"}, names());

    letItAnswer();
    for (const ULONGLONG begin = GetTickCount64(); listed().empty() && GetTickCount64() - begin < patience;)
    {
        showAgain();
    }
    EXPECT_EQ(Names{L"a.log"}, listed());
    view().runNodeCommand(logFiles, deleteAll);
    EXPECT_EQ(Names{}, names());
}

TEST_F(LogFolderThatDoesNotAnswer, doesNotHoldUpAnother)
{
    Listing listing(
        [&](LPCWSTR path, auto... arguments)
        {
            if (std::wstring_view(path).find(L"Other") == std::wstring_view::npos)
            {
                return slowListing(listing)(path, arguments...);
            }
            return listing.callThrough(path, arguments...);
        });
    Waiting waiting(shortWaits(waiting));
    view().select(logFiles);
    EXPECT_EQ(Names{}, listed());
    write(L"b.log", otherFolder());
    setFolder(L"\\\\?\\" + otherFolder().wstring());
    showAgain();
    EXPECT_EQ(Names{L"b.log"}, listed());

    letItAnswer();
    setFolder(L"\\\\?\\" + defaultFolder().wstring());
    for (const ULONGLONG begin = GetTickCount64(); listed() != Names{L"a.log"} && GetTickCount64() - begin < patience;)
    {
        showAgain();
    }
    EXPECT_EQ(Names{L"a.log"}, listed());
}

} // namespace
} // namespace Acceptance
