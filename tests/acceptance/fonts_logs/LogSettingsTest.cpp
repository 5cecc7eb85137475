#include "fonts_logs/LogsTest.h"
#include "kit/ImportSpy.h"
#include "kit/windows.h"

#include <shellapi.h>

namespace Acceptance
{
namespace
{

// A settings file that cannot be read, so that nobody knows where the logs are.
class LogsWithBrokenSettings : public LogsTest
{
  protected:
    static void breakSettings() { ServerFiles::write(ServerFiles::configuration(), "<configuration>"); }
    static void repairSettings()
    {
        ServerFiles::write(ServerFiles::configuration(), ServerFiles::configurationWith(""));
    }

    void report(std::source_location where = std::source_location::current())
    {
        robot.messageThat(
            [](const MessageBoxSeen& box)
            {
                EXPECT_EQ(L"KV Tessaro 2010", box.caption);
                EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), box.icon);
                EXPECT_EQ(Owner::none, box.owner);
                EXPECT_NE(std::wstring::npos, box.text.find(ServerFiles::configuration().wstring()))
                    << narrow(box.text);
            },
            where);
    }
};

TEST_F(LogsWithBrokenSettings, areNoneAfterTheOneReportOfTheWholeTree)
{
    write(L"a.log");
    breakSettings();
    report();
    openLogs();
    robot.finish();
    EXPECT_EQ(Names{}, listed());
    showAgain();
    EXPECT_EQ(Names{}, listed());
}

TEST_F(LogsWithBrokenSettings, areThereAgainWhenTheFileIsRepaired)
{
    write(L"a.log");
    breakSettings();
    report();
    openLogs();
    repairSettings();
    showAgain();
    EXPECT_EQ(Names{L"a.log"}, listed());
    breakSettings();
    report();
    showAgain();
    EXPECT_EQ(Names{}, listed());
}

TEST_F(LogsWithBrokenSettings, areNeitherOpenedNorDeletedAndEachAttemptIsReported)
{
    write(L"a.log");
    openLogs();
    breakSettings();
    ImportSpy<"ShellExecuteW", decltype(ShellExecuteW)> shell;
    for (int attempt = 1; attempt <= 2; ++attempt)
    {
        recorder.forgetCalls();
        report();
        view().doubleClick(L"a.log");
        report();
        view().runCommand(L"a.log", openLog);
        report();
        view().pressDelete(L"a.log");
        report();
        view().runNodeCommand(logFiles, deleteAll);
        robot.finish();
        EXPECT_EQ(E_FAIL, recorder.calls(L"IComponent::Notify", L"event=MMCN_DELETE").at(0).result);
        EXPECT_TRUE(recorder.calls(L"IConsole::UpdateAllViews").empty());
    }
    EXPECT_EQ(0, shell.calls());
    EXPECT_EQ(Names{L"a.log"}, names());
    EXPECT_EQ(Names{L"a.log"}, listed()) << "what was listed stays";
}

} // namespace
} // namespace Acceptance
