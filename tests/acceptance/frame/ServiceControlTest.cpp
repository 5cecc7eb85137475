#include "frame/BareSnapIn.h"
#include "frame/SimulatedService.h"
#include "frame/serviceCommands.h"
#include "kit/ConsoleTest.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

// Start and stop as they treat the service manager, without waiting for a real service.
class ServiceControl : public ConsoleTest
{
  protected:
    void SetUp() override
    {
        ConsoleTest::SetUp();
        // Away from the windows: one that opens below the mouse sets its own cursor.
        SetCursorPos(0, 0);
        SetCursor(LoadCursorW(nullptr, IDC_CROSS));
    }
    void TearDown() override
    {
        EXPECT_EQ(LoadCursorW(nullptr, IDC_CROSS), GetCursor()) << "the cursor is not restored";
        ConsoleTest::TearDown();
    }

    static HRESULT run(long command)
    {
        BareSnapIn snapIn;
        return snapIn.menus()->Command(command, snapIn.object().Get());
    }

    // A message box in which the wait cursor still shows.
    void expectMessage(const std::wstring& text)
    {
        robot.messageThat(
            [text](const MessageBoxSeen& seen)
            {
                EXPECT_EQ(text, seen.text);
                EXPECT_EQ(L"KV Tessaro 2010", seen.caption);
                EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), seen.icon);
                EXPECT_EQ(Owner::none, seen.owner);
                EXPECT_EQ(std::vector<int>{IDOK}, seen.buttons);
                EXPECT_EQ(LoadCursorW(nullptr, IDC_WAIT), GetCursor());
            });
    }
};

const std::vector<int> serviceThenManager{2, 1};

TEST_F(ServiceControl, opensTheLocalManagerAndTheServiceWithAllRights)
{
    SimulatedService service;
    service.statuses = {{SERVICE_RUNNING}};
    EXPECT_EQ(S_OK, run(startCommand));
    EXPECT_EQ(0xF003Fu, service.managerAccess);
    EXPECT_EQ(0xF01FFu, service.serviceAccess);
    EXPECT_EQ(serviceThenManager, service.closed);
}

TEST_F(ServiceControl, startOfARunningServiceAsksForNothing)
{
    SimulatedService service;
    service.statuses = {{SERVICE_RUNNING}};
    EXPECT_EQ(S_OK, run(startCommand));
    EXPECT_EQ(0, service.starts);
    EXPECT_TRUE(service.sleeps.empty());
}

TEST_F(ServiceControl, stopOfAStoppedServiceAsksForNothing)
{
    SimulatedService service;
    service.statuses = {{SERVICE_STOPPED}};
    EXPECT_EQ(S_OK, run(stopCommand));
    EXPECT_TRUE(service.controls.empty());
    EXPECT_EQ(serviceThenManager, service.closed);
}

TEST_F(ServiceControl, startIsAskedForInEveryOtherState)
{
    for (const DWORD state : {SERVICE_STOPPED, SERVICE_START_PENDING, SERVICE_STOP_PENDING, SERVICE_CONTINUE_PENDING,
                              SERVICE_PAUSE_PENDING, SERVICE_PAUSED})
    {
        SimulatedService service;
        service.statuses = {{static_cast<DWORD>(state)}, {SERVICE_RUNNING}};
        EXPECT_EQ(S_OK, run(startCommand));
        EXPECT_EQ(1, service.starts) << state;
        EXPECT_TRUE(service.controls.empty());
    }
}

TEST_F(ServiceControl, stopIsAskedForInEveryOtherState)
{
    for (const DWORD state : {SERVICE_RUNNING, SERVICE_START_PENDING, SERVICE_STOP_PENDING, SERVICE_CONTINUE_PENDING,
                              SERVICE_PAUSE_PENDING, SERVICE_PAUSED})
    {
        SimulatedService service;
        service.statuses = {{static_cast<DWORD>(state)}, {SERVICE_STOPPED}};
        EXPECT_EQ(S_OK, run(stopCommand));
        EXPECT_EQ(std::vector<DWORD>{SERVICE_CONTROL_STOP}, service.controls) << state;
        EXPECT_EQ(0, service.starts);
    }
}

TEST_F(ServiceControl, sleepsATenthOfTheWaitHintButOneSecondAtLeastAndTenAtMost)
{
    const std::pair<DWORD, DWORD> cases[] = {{0, 1000},     {9999, 1000},    {10000, 1000},  {25000, 2500},
                                             {99990, 9999}, {100000, 10000}, {200000, 10000}};
    for (const auto& [hint, sleep] : cases)
    {
        SimulatedService service;
        service.statuses = {{SERVICE_STOPPED}, {SERVICE_START_PENDING, 1, hint}, {SERVICE_RUNNING}};
        EXPECT_EQ(S_OK, run(startCommand));
        EXPECT_EQ(std::vector<DWORD>{sleep}, service.sleeps) << hint;
    }
}

TEST_F(ServiceControl, waitsOnlyWhileTheServiceIsInThePendingStateOfTheRequest)
{
    for (const DWORD state : {SERVICE_RUNNING, SERVICE_STOPPED, SERVICE_STOP_PENDING, SERVICE_PAUSED})
    {
        SimulatedService service;
        service.statuses = {{SERVICE_STOPPED}, {static_cast<DWORD>(state), 0, 5000}};
        EXPECT_EQ(S_OK, run(startCommand));
        EXPECT_TRUE(service.sleeps.empty()) << state;
    }
    SimulatedService service;
    service.statuses = {{SERVICE_RUNNING}, {SERVICE_START_PENDING, 0, 5000}};
    EXPECT_EQ(S_OK, run(stopCommand));
    EXPECT_TRUE(service.sleeps.empty());
}

TEST_F(ServiceControl, aServiceWithoutProgressIsLeftAfterItsWaitHint)
{
    SimulatedService service;
    service.statuses = {{SERVICE_RUNNING}, {SERVICE_STOP_PENDING, 3, 5000}};
    EXPECT_EQ(S_OK, run(stopCommand));
    // After five seconds no more than the hint has passed; the tick count starts anew at zero on the way.
    EXPECT_EQ(std::vector<DWORD>(6, 1000), service.sleeps);
    EXPECT_EQ(serviceThenManager, service.closed);
}

TEST_F(ServiceControl, aServiceWithProgressIsWaitedFor)
{
    SimulatedService service;
    service.statuses = {{SERVICE_STOPPED}};
    for (DWORD checkPoint = 1; checkPoint <= 30; ++checkPoint)
    {
        service.statuses.push_back({SERVICE_START_PENDING, checkPoint, 500});
    }
    service.statuses.push_back({SERVICE_RUNNING});
    EXPECT_EQ(S_OK, run(startCommand));
    EXPECT_EQ(std::vector<DWORD>(30, 1000), service.sleeps);
}

TEST_F(ServiceControl, aCheckPointThatFallsIsNoProgress)
{
    SimulatedService service;
    service.statuses = {{SERVICE_STOPPED},
                        {SERVICE_START_PENDING, 9, 1500},
                        {SERVICE_START_PENDING, 8, 1500},
                        {SERVICE_START_PENDING, 7, 1500},
                        {SERVICE_START_PENDING, 6, 1500}};
    EXPECT_EQ(S_OK, run(startCommand));
    EXPECT_EQ(2u, service.sleeps.size());
}

TEST_F(ServiceControl, aStatusThatCannotBeReadAnyMoreEndsTheWaitWithoutAMessage)
{
    SimulatedService service;
    service.statuses = {{SERVICE_STOPPED}, {SERVICE_START_PENDING, 1, 5000}};
    service.lastStays = false;
    EXPECT_EQ(S_OK, run(startCommand));
    EXPECT_EQ(1u, service.sleeps.size());

    service.statuses = {{SERVICE_STOPPED}};
    EXPECT_EQ(S_OK, run(startCommand)) << "the first look of the wait fails";
    EXPECT_EQ(1u, service.sleeps.size());
}

TEST_F(ServiceControl, theWaitCursorShowsWhileItWaits)
{
    SimulatedService service;
    service.statuses = {{SERVICE_STOPPED}, {SERVICE_START_PENDING, 1, 1500}};
    run(startCommand);
    EXPECT_EQ(std::vector<bool>(2, true), service.waitCursorInSleep);
}

struct Failure
{
    long command;
    DWORD SimulatedService::*error;
    const wchar_t* context;
    std::vector<int> closed;
    std::deque<SimulatedService::Status> statuses;
};

void PrintTo(const Failure& failure, std::ostream* out)
{
    *out << failure.command << ' ' << narrow(failure.context);
}

class ServiceFailures : public ServiceControl, public testing::WithParamInterface<Failure>
{
};

// Proves: the line break at the end of the system's text stays in the middle of the message.
TEST_P(ServiceFailures, areReportedWithTheSystemsExplanation)
{
    for (const DWORD error : {ERROR_ACCESS_DENIED, ERROR_SERVICE_DOES_NOT_EXIST, ERROR_SERVICE_DISABLED})
    {
        SimulatedService service;
        service.statuses = GetParam().statuses;
        service.*GetParam().error = error;
        wchar_t code[9];
        swprintf(code, std::size(code), L"%08X", static_cast<unsigned>(error));
        const std::wstring explanation = systemText(error);
        ASSERT_TRUE(explanation.ends_with(L"\r\n"));
        expectMessage(std::wstring(GetParam().context) + L": " + explanation + L" (0x" + code + L").");
        EXPECT_EQ(E_FAIL, run(GetParam().command));
        EXPECT_EQ(GetParam().closed, service.closed);
        EXPECT_TRUE(service.sleeps.empty());
    }
}

FARPROC noText()
{
    return nullptr;
}

TEST_P(ServiceFailures, areReportedByTheirCodeWhenTheSystemHasNoText)
{
    SimulatedService service;
    service.statuses = GetParam().statuses;
    service.*GetParam().error = 0xABCDEF;
    const ImportPatch patch("FormatMessageW", noText);
    expectMessage(std::wstring(GetParam().context) + L" (0x00ABCDEF).");
    EXPECT_EQ(E_FAIL, run(GetParam().command));
}

TEST_P(ServiceFailures, leaveTheViewsAsTheyAre)
{
    SimulatedService service;
    service.statuses = GetParam().statuses;
    service.*GetParam().error = ERROR_ACCESS_DENIED;
    robot.messageThat([](const MessageBoxSeen&) {});
    BareSnapIn snapIn;
    EXPECT_EQ(E_FAIL, snapIn.menus()->Command(GetParam().command, snapIn.object().Get()));
    EXPECT_TRUE(snapIn.console.updates.empty());
}

INSTANTIATE_TEST_SUITE_P(
    All, ServiceFailures,
    testing::Values(
        Failure{startCommand, &SimulatedService::managerError, L"Can't open Service Control Manager", {}, {}},
        Failure{stopCommand, &SimulatedService::managerError, L"Can't open Service Control Manager", {}, {}},
        Failure{startCommand, &SimulatedService::serviceError, L"Can't open the service", {1}, {}},
        Failure{stopCommand, &SimulatedService::serviceError, L"Can't open the service", {1}, {}},
        Failure{startCommand, &SimulatedService::queryError, L"Can't query service status", {2, 1}, {}},
        Failure{stopCommand, &SimulatedService::queryError, L"Can't query service status", {2, 1}, {}},
        Failure{startCommand, &SimulatedService::startError, L"Can't start the service", {2, 1}, {{SERVICE_STOPPED}}},
        Failure{stopCommand, &SimulatedService::controlError, L"Can't stop the service", {2, 1}, {{SERVICE_RUNNING}}}));

// Confirms a setting as it is, which restarts the service when no preference says otherwise.
class ServiceRestart : public ServiceControl
{
  protected:
    void restart(SimulatedService& service, const std::vector<std::wstring>& messages = {})
    {
        open();
        service.statuses = {{SERVICE_STOPPED}};
        view().select(L"Engine Settings\\Listener Configuration");
        robot.dialog(L"Edit Property",
                     [&service, this](ModalWindow& dialog)
                     {
                         service.statuses = statuses;
                         service.controlError = controlError;
                         service.startError = startError;
                         dialog.press(IDOK);
                     });
        for (const std::wstring& message : messages)
        {
            expectMessage(message);
        }
        view().doubleClick(L"Backlog");
    }

    std::deque<SimulatedService::Status> statuses;
    DWORD controlError = 0;
    DWORD startError = 0;
    const std::wstring stopRefused =
        L"Can't stop the service: " + systemText(ERROR_INVALID_SERVICE_CONTROL) + L" (0x0000041C).";
};

TEST_F(ServiceRestart, stopsAndThenStarts)
{
    SimulatedService service;
    statuses = {{SERVICE_RUNNING}, {SERVICE_STOPPED}, {SERVICE_STOPPED}, {SERVICE_RUNNING}};
    restart(service);
    EXPECT_EQ(1u, service.controls.size());
    EXPECT_EQ(1, service.starts);
}

TEST_F(ServiceRestart, startsWhateverBecameOfTheStop)
{
    SimulatedService service;
    statuses = {{SERVICE_PAUSED}, {SERVICE_PAUSED}, {SERVICE_RUNNING}};
    controlError = ERROR_INVALID_SERVICE_CONTROL;
    restart(service, {stopRefused});
    EXPECT_EQ(1u, service.controls.size());
    EXPECT_EQ(1, service.starts);
}

TEST_F(ServiceRestart, thatCanNeitherStopNorStartReportsBoth)
{
    SimulatedService service;
    statuses = {{SERVICE_PAUSED}};
    controlError = ERROR_INVALID_SERVICE_CONTROL;
    startError = ERROR_SERVICE_DISABLED;
    restart(service,
            {stopRefused, L"Can't start the service: " + systemText(ERROR_SERVICE_DISABLED) + L" (0x00000422)."});
}

DWORD formatFlags;
DWORD formatLanguage;

DWORD WINAPI formatMessage(DWORD flags, LPCVOID source, DWORD code, DWORD language, LPWSTR buffer, DWORD size,
                           va_list* arguments)
{
    formatFlags = flags;
    formatLanguage = language;
    return FormatMessageW(flags, source, code, language, buffer, size, arguments);
}

TEST_F(ServiceControl, theExplanationIsTheSystemsInTheUsersLanguage)
{
    SimulatedService service;
    service.managerError = ERROR_ACCESS_DENIED;
    const ImportPatch patch("FormatMessageW", formatMessage);
    robot.messageThat([](const MessageBoxSeen&) {});
    run(startCommand);
    EXPECT_EQ(
        static_cast<DWORD>(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_FROM_SYSTEM),
        formatFlags);
    EXPECT_EQ(static_cast<DWORD>(MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT)), formatLanguage);
}

TEST_F(ServiceControl, theBoxIsTheReportsOwnWholeSeenByItsUser)
{
    // No service is installed: this is the real manager's answer.
    robot.message({.text = L"Can't open the service: " + systemText(ERROR_SERVICE_DOES_NOT_EXIST) + L" (0x00000424).",
                   .caption = L"KV Tessaro 2010",
                   .icon = MB_ICONERROR});
    EXPECT_EQ(E_FAIL, run(startCommand));
}

} // namespace
} // namespace Acceptance
