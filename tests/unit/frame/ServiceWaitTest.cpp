#include "tmgmt/frame/ServiceWait.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using TMgmt::pollInterval;
using TMgmt::ServiceProgress;
using TMgmt::waitWhilePending;

constexpr std::uint32_t pending = 2;
constexpr std::uint32_t running = 4;

// A service that gives its statuses one after the other, the last one for ever, on a clock that only sleeping moves.
class ScriptedService
{
  public:
    explicit ScriptedService(std::vector<std::optional<ServiceProgress>> statuses, std::uint32_t now = 0)
        : m_statuses(std::move(statuses)), m_now(now)
    {
    }

    std::optional<ServiceProgress> query()
    {
        const auto& status = m_statuses[std::min(m_queries, m_statuses.size() - 1)];
        ++m_queries;
        return status;
    }
    std::uint32_t ticks() const { return m_now; }
    void sleep(std::uint32_t milliseconds)
    {
        m_sleeps.push_back(milliseconds);
        m_now += milliseconds;
        if (m_sleeps.size() > 1000)
        {
            throw std::runtime_error("the wait does not end");
        }
    }

    std::size_t queries() const { return m_queries; }
    const std::vector<std::uint32_t>& sleeps() const { return m_sleeps; }

  private:
    std::vector<std::optional<ServiceProgress>> m_statuses;
    std::size_t m_queries = 0;
    std::uint32_t m_now;
    std::vector<std::uint32_t> m_sleeps;
};

using Sleeps = std::vector<std::uint32_t>;

TEST(PollInterval, isATenthOfTheWaitHintWithinOneAndTenSeconds)
{
    EXPECT_EQ(pollInterval(0), 1000U);
    EXPECT_EQ(pollInterval(9999), 1000U);
    EXPECT_EQ(pollInterval(10000), 1000U);
    EXPECT_EQ(pollInterval(25000), 2500U);
    EXPECT_EQ(pollInterval(100000), 10000U);
    EXPECT_EQ(pollInterval(200000), 10000U);
    EXPECT_EQ(pollInterval(0xFFFFFFFF), 10000U);
}

TEST(WaitWhilePending, doesNotSleepWhenTheServiceIsNotPending)
{
    ScriptedService service({ServiceProgress{running, 0, 5000}});
    waitWhilePending(service, pending);
    EXPECT_EQ(service.sleeps(), Sleeps{});
    EXPECT_EQ(service.queries(), 1U);
}

TEST(WaitWhilePending, endsWhenTheStateIsLeft)
{
    ScriptedService service(
        {ServiceProgress{pending, 1, 30000}, ServiceProgress{pending, 2, 30000}, ServiceProgress{running, 0, 0}});
    waitWhilePending(service, pending);
    EXPECT_EQ(service.sleeps(), (Sleeps{3000, 3000}));
}

TEST(WaitWhilePending, sleepsAsTheLatestWaitHintSays)
{
    ScriptedService service({ServiceProgress{pending, 1, 0}, ServiceProgress{pending, 2, 200000},
                             ServiceProgress{pending, 3, 40000}, ServiceProgress{running, 0, 0}});
    waitWhilePending(service, pending);
    EXPECT_EQ(service.sleeps(), (Sleeps{1000, 10000, 4000}));
}

TEST(WaitWhilePending, givesUpOneSleepAfterTheWaitHintWhenTheCheckPointNeverGrows)
{
    ScriptedService service({ServiceProgress{pending, 1, 5000}});
    waitWhilePending(service, pending);
    // At 5000 ms the hint is used up but not passed.
    EXPECT_EQ(service.sleeps(), Sleeps(6, 1000));
}

TEST(WaitWhilePending, givesUpAfterOneSleepWithoutAWaitHint)
{
    ScriptedService service({ServiceProgress{pending, 7, 0}});
    waitWhilePending(service, pending);
    EXPECT_EQ(service.sleeps(), Sleeps{1000});
}

TEST(WaitWhilePending, startsItsPatienceAnewWithEachNewCheckPoint)
{
    std::vector<std::optional<ServiceProgress>> statuses;
    for (std::uint32_t checkPoint = 1; checkPoint <= 20; ++checkPoint)
    {
        statuses.emplace_back(ServiceProgress{pending, checkPoint, 1500});
    }
    // From here on the check point stands still: two more sleeps pass the hint.
    ScriptedService service(statuses);
    waitWhilePending(service, pending);
    EXPECT_EQ(service.sleeps().size(), 19U + 2U);
}

TEST(WaitWhilePending, doesNotTakeASmallerCheckPointForProgress)
{
    ScriptedService service(
        {ServiceProgress{pending, 5, 1500}, ServiceProgress{pending, 4, 1500}, ServiceProgress{pending, 3, 1500}});
    waitWhilePending(service, pending);
    EXPECT_EQ(service.sleeps().size(), 2U);
}

TEST(WaitWhilePending, stopsWhenTheStatusCannotBeRead)
{
    ScriptedService service({ServiceProgress{pending, 1, 60000}, std::nullopt, ServiceProgress{pending, 2, 60000}});
    waitWhilePending(service, pending);
    EXPECT_EQ(service.sleeps(), Sleeps{6000});
}

TEST(WaitWhilePending, takesAFailedFirstLookForNothingPending)
{
    ScriptedService service({std::nullopt});
    waitWhilePending(service, pending);
    EXPECT_EQ(service.sleeps(), Sleeps{});
}

TEST(WaitWhilePending, survivesTheTickCountGoingRound)
{
    ScriptedService service({ServiceProgress{pending, 1, 5000}}, 0xFFFFFFFF - 2500);
    waitWhilePending(service, pending);
    EXPECT_EQ(service.sleeps(), Sleeps(6, 1000));
}

} // namespace
