#include "CommonAppData.h"
#include "InstalledService.h"
#include "Program.h"
#include "waitFor.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

class Misbehaviour : public testing::Test
{
  protected:
    CommonAppData m_data;
};

// Polls until the service is in the state and gives the check points that it reported on the way.
std::set<DWORD> checkPointsUntil(const InstalledService& service, DWORD state)
{
    std::set<DWORD> seen;
    EXPECT_TRUE(waitFor(
        [&]
        {
            const SERVICE_STATUS status = service.status();
            if (status.dwCurrentState == state)
            {
                return true;
            }
            EXPECT_TRUE(seen.empty() || status.dwCheckPoint >= *seen.rbegin()) << "a check point went back";
            seen.insert(status.dwCheckPoint);
            return false;
        }));
    return seen;
}

} // namespace

TEST_F(Misbehaviour, SlowStartReportsGrowingCheckPoints)
{
    InstalledService service(L"--start-checkpoints 3 --checkpoint-interval 400 --wait-hint 2500");
    const ULONGLONG begin = GetTickCount64();
    ASSERT_EQ(service.start(), 0u);
    ASSERT_TRUE(service.reaches(SERVICE_START_PENDING));
    EXPECT_EQ(service.status().dwControlsAccepted, 0u);
    EXPECT_GE(checkPointsUntil(service, SERVICE_RUNNING).size(), 2u);
    EXPECT_GE(GetTickCount64() - begin, 1200u);
    EXPECT_EQ(service.status().dwCheckPoint, 0u);
}

TEST_F(Misbehaviour, SlowStopReportsGrowingCheckPoints)
{
    InstalledService service(L"--stop-checkpoints 3 --checkpoint-interval 400 --wait-hint 2500");
    ASSERT_EQ(service.start(), 0u);
    ASSERT_TRUE(service.reaches(SERVICE_RUNNING));
    const ULONGLONG begin = GetTickCount64();
    ASSERT_EQ(service.control(SERVICE_CONTROL_STOP), 0u);
    EXPECT_EQ(service.state(), static_cast<DWORD>(SERVICE_STOP_PENDING));
    EXPECT_EQ(service.status().dwWaitHint, 2500u);
    EXPECT_GE(checkPointsUntil(service, SERVICE_STOPPED).size(), 2u);
    EXPECT_GE(GetTickCount64() - begin, 1200u);
}

// "start" waits for one wait hint at most (a second at least) while the check point does not grow.
TEST_F(Misbehaviour, HangingStartKeepsItsCheckPointUntilTheServiceIsEnded)
{
    InstalledService service(L"--start-hang --wait-hint 1500");
    EXPECT_EQ(run(L"start"), 3u);
    const SERVICE_STATUS status = service.status();
    EXPECT_EQ(status.dwCurrentState, static_cast<DWORD>(SERVICE_START_PENDING));
    EXPECT_EQ(status.dwCheckPoint, 1u);
    EXPECT_EQ(status.dwWaitHint, 1500u);
    EXPECT_NE(service.control(SERVICE_CONTROL_STOP), 0u);
    EXPECT_EQ(run(L"end"), 0u);
    EXPECT_EQ(service.state(), static_cast<DWORD>(SERVICE_STOPPED));
}

TEST_F(Misbehaviour, HangingStopKeepsItsCheckPointUntilTheServiceIsEnded)
{
    InstalledService service(L"--stop-hang --wait-hint 1500");
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(run(L"stop"), 3u);
    const SERVICE_STATUS status = service.status();
    EXPECT_EQ(status.dwCurrentState, static_cast<DWORD>(SERVICE_STOP_PENDING));
    EXPECT_EQ(status.dwCheckPoint, 1u);
    EXPECT_EQ(run(L"end"), 0u);
    EXPECT_EQ(service.state(), static_cast<DWORD>(SERVICE_STOPPED));
}

TEST_F(Misbehaviour, RefusedStopLeavesTheServiceRunningUntilItIsEnded)
{
    InstalledService service(L"--refuse-stop");
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(service.status().dwControlsAccepted & SERVICE_ACCEPT_STOP, 0u);
    EXPECT_EQ(service.control(SERVICE_CONTROL_STOP), static_cast<DWORD>(ERROR_INVALID_SERVICE_CONTROL));
    EXPECT_EQ(run(L"stop"), 1u);
    EXPECT_EQ(service.state(), static_cast<DWORD>(SERVICE_RUNNING));
    EXPECT_EQ(run(L"end"), 0u);
    EXPECT_EQ(service.state(), static_cast<DWORD>(SERVICE_STOPPED));
}

TEST_F(Misbehaviour, RefusedStartFailsTheStartRequest)
{
    InstalledService service(L"--refuse-start");
    EXPECT_EQ(service.start(), static_cast<DWORD>(ERROR_SERVICE_REQUEST_TIMEOUT));
    EXPECT_TRUE(service.reaches(SERVICE_STOPPED));
}

TEST_F(Misbehaviour, PausableServicePausesAndContinues)
{
    InstalledService service(L"--pausable");
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(service.control(SERVICE_CONTROL_PAUSE), 0u);
    EXPECT_TRUE(service.reaches(SERVICE_PAUSED));
    EXPECT_EQ(service.control(SERVICE_CONTROL_CONTINUE), 0u);
    EXPECT_TRUE(service.reaches(SERVICE_RUNNING));
    EXPECT_EQ(service.control(SERVICE_CONTROL_PAUSE), 0u);
    EXPECT_EQ(service.control(SERVICE_CONTROL_STOP), 0u);
    EXPECT_TRUE(service.reaches(SERVICE_STOPPED));
}

TEST_F(Misbehaviour, OrdinaryServiceAcceptsStopOnly)
{
    InstalledService service;
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(service.control(SERVICE_CONTROL_PAUSE), static_cast<DWORD>(ERROR_INVALID_SERVICE_CONTROL));
    EXPECT_EQ(service.control(SERVICE_CONTROL_STOP), 0u);
    EXPECT_TRUE(service.reaches(SERVICE_STOPPED));
}

TEST_F(Misbehaviour, ReconfiguredServiceBehavesFromItsNextStart)
{
    InstalledService service(L"--refuse-stop");
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(run(L"reconfigure"), 0u);
    EXPECT_EQ(service.control(SERVICE_CONTROL_STOP), static_cast<DWORD>(ERROR_INVALID_SERVICE_CONTROL));
    EXPECT_EQ(run(L"end"), 0u);
    EXPECT_EQ(run(L"start"), 0u);
    EXPECT_EQ(run(L"stop"), 0u);
}
