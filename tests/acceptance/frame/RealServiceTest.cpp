#include "frame/BareSnapIn.h"
#include "kit/ConsoleTest.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

constexpr long startCommand = 1002;
constexpr long stopCommand = 1003;

// Start, stop and restart of the stand-in by the machine's own service manager.
class RealService : public ConsoleTest
{
  protected:
    void SetUp() override
    {
        ConsoleTest::SetUp();
        Service::useFreePort();
    }

    static HRESULT run(long command)
    {
        BareSnapIn snapIn;
        return snapIn.menus()->Command(command, snapIn.object().Get());
    }

    static MessageBoxSeen failure(const std::wstring& context, DWORD error, const wchar_t* code)
    {
        return {.text = context + L": " + systemText(error) + L" (" + code + L").",
                .caption = L"KV Tessaro 2010",
                .icon = MB_ICONERROR};
    }

    // Confirms a setting as it is, which restarts the service when no preference says otherwise.
    void restart()
    {
        open();
        view().select(L"Engine Settings\\Listener Configuration");
        robot.dialog(L"Edit Property", [](ModalWindow& dialog) { dialog.press(IDOK); });
        view().doubleClick(L"Backlog");
    }
};

TEST_F(RealService, starts)
{
    Service::install();
    EXPECT_EQ(S_OK, run(startCommand));
    EXPECT_EQ(SERVICE_RUNNING, Service::state());
}

TEST_F(RealService, stops)
{
    Service::install();
    Service::start();
    EXPECT_EQ(S_OK, run(stopCommand));
    EXPECT_EQ(SERVICE_STOPPED, Service::state());
}

TEST_F(RealService, thatRunsIsNotStartedAgain)
{
    Service::install();
    Service::start();
    const DWORD process = Service::processId();
    EXPECT_EQ(S_OK, run(startCommand));
    EXPECT_EQ(process, Service::processId());
}

TEST_F(RealService, thatIsStoppedIsNotStoppedAgain)
{
    Service::install();
    EXPECT_EQ(S_OK, run(stopCommand));
    EXPECT_EQ(SERVICE_STOPPED, Service::state());
}

TEST_F(RealService, thatStartsSlowlyWithProgressIsWaitedForLongerThanItsHint)
{
    Service::install(L"--start-checkpoints 8 --checkpoint-interval 400 --wait-hint 1500");
    const ULONGLONG begin = GetTickCount64();
    EXPECT_EQ(S_OK, run(startCommand));
    EXPECT_EQ(SERVICE_RUNNING, Service::state());
    EXPECT_LE(3200u, GetTickCount64() - begin);
}

TEST_F(RealService, thatHangsWhileStartingIsLeftAfterItsHint)
{
    Service::install(L"--start-hang --wait-hint 500");
    EXPECT_EQ(S_OK, run(startCommand));
    EXPECT_EQ(SERVICE_START_PENDING, Service::state());
}

TEST_F(RealService, thatHangsWhileStoppingIsLeftAfterItsHint)
{
    Service::install(L"--stop-hang --wait-hint 500");
    Service::start();
    EXPECT_EQ(S_OK, run(stopCommand));
    EXPECT_EQ(SERVICE_STOP_PENDING, Service::state());
}

TEST_F(RealService, thatRefusesToStopIsReported)
{
    Service::install(L"--refuse-stop");
    Service::start();
    robot.message(failure(L"Can't stop the service", ERROR_INVALID_SERVICE_CONTROL, L"0x0000041C"));
    EXPECT_EQ(E_FAIL, run(stopCommand));
    EXPECT_EQ(SERVICE_RUNNING, Service::state());
}

TEST_F(RealService, thatRefusesToStartIsReported)
{
    Service::install(L"--refuse-start");
    robot.message(failure(L"Can't start the service", ERROR_SERVICE_REQUEST_TIMEOUT, L"0x0000041D"));
    EXPECT_EQ(E_FAIL, run(startCommand));
    EXPECT_EQ(SERVICE_STOPPED, Service::state());
}

TEST_F(RealService, thatIsMissingIsReportedByStartAndStop)
{
    for (const long command : {startCommand, stopCommand})
    {
        robot.message(failure(L"Can't open the service", ERROR_SERVICE_DOES_NOT_EXIST, L"0x00000424"));
        EXPECT_EQ(E_FAIL, run(command));
    }
}

TEST_F(RealService, restartStopsAndStarts)
{
    Service::install();
    Service::start();
    const DWORD process = Service::processId();
    restart();
    EXPECT_EQ(SERVICE_RUNNING, Service::state());
    EXPECT_NE(process, Service::processId());
}

TEST_F(RealService, restartOfAStoppedServiceStartsIt)
{
    Service::install();
    restart();
    EXPECT_EQ(SERVICE_RUNNING, Service::state());
}

TEST_F(RealService, restartThatCanNeitherStopNorStartReportsBoth)
{
    open();
    view().select(L"Engine Settings\\Listener Configuration");
    robot.dialog(L"Edit Property", [](ModalWindow& dialog) { dialog.press(IDOK); });
    robot.message(failure(L"Can't open the service", ERROR_SERVICE_DOES_NOT_EXIST, L"0x00000424"));
    robot.message(failure(L"Can't open the service", ERROR_SERVICE_DOES_NOT_EXIST, L"0x00000424"));
    view().doubleClick(L"Backlog");
}

} // namespace
} // namespace Acceptance
