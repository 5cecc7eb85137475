#include "LeakTest.h"
#include "systemCaches.h"

#include "kit/canUnloadNow.h"

namespace Hostile
{

std::optional<Server> LeakTest::s_server;

void LeakTest::SetUp()
{
    fillSystemCaches(m_frame.handle());
    m_instance.emplace(m_whim, m_frame.handle());
    m_memory.emplace();
    m_instance->expandAll();
    ASSERT_NE(nullptr, m_instance->addView());
}

void LeakTest::TearDown()
{
    m_instance.reset();
    EXPECT_EQ(S_OK, Acceptance::canUnloadNow());
    m_memory.reset();
}

int LeakTest::expectLevel(const std::function<void()>& round)
{
    constexpr int first = 10;
    for (int i = 0; i < first; ++i)
    {
        round();
    }
    const ResourceCounts before = countResources();
    const long blocksBefore = m_memory->blocks();
    for (int i = 0; i < rounds; ++i)
    {
        round();
    }
    const long blocks = m_memory->blocks() - blocksBefore;
    expectNoMore(before, countResources());
    // A cache may have grown meanwhile; one block a round would be far more.
    EXPECT_LT(blocks, rounds / 10) << "blocks of memory more than before";
    return first + rounds;
}

} // namespace Hostile
