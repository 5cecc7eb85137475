#include "LeakTest.h"

#include "kit/canUnloadNow.h"

namespace Hostile
{

std::optional<Server> LeakTest::s_server;

void LeakTest::SetUp()
{
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

void LeakTest::expectLevel(const std::function<void()>& round, int count)
{
    for (int i = 0; i < count / 10; ++i)
    {
        round();
    }
    const ResourceCounts before = ResourceCounts::now();
    const long blocksBefore = m_memory->blocks();
    for (int i = 0; i < count; ++i)
    {
        round();
    }
    const long blocks = m_memory->blocks() - blocksBefore;
    const ResourceCounts after = ResourceCounts::now();
    EXPECT_LE(after.handles, before.handles);
    EXPECT_LE(after.gdiObjects, before.gdiObjects);
    EXPECT_LE(after.windows, before.windows);
    EXPECT_LE(after.menus, before.menus);
    // A cache may have grown meanwhile; one block a round would be far more.
    EXPECT_LT(blocks, count / 10) << "blocks of memory more than before";
    if (HasFailure())
    {
        ADD_FAILURE() << "before: " << before << "\nafter:  " << after;
    }
}

} // namespace Hostile
