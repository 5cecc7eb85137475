#include "tmgmt/snapin/NodeTable.h"
#include "tmgmt/frame/RootItem.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <vector>

namespace
{

using namespace TMgmt;

class NodeTableTest : public testing::Test
{
  protected:
    CSnapInItem& node(std::size_t index)
    {
        while (m_nodes.size() <= index)
        {
            m_nodes.emplace_back(new RootItem({}));
        }
        return *m_nodes[index];
    }

    NodeTable m_table;

  private:
    std::vector<Core::SmartPtr<CSnapInItem>> m_nodes;
};

TEST_F(NodeTableTest, findsEachNodeByItsNumber)
{
    std::vector<MMC_COOKIE> cookies;
    for (std::size_t index = 0; index < 100; ++index)
    {
        cookies.push_back(m_table.add(node(index)));
        EXPECT_LT(0, cookies.back());
    }
    EXPECT_EQ(100u, std::set<MMC_COOKIE>(cookies.begin(), cookies.end()).size());
    for (std::size_t index = 0; index < 100; ++index)
    {
        EXPECT_EQ(&node(index), m_table.find(cookies[index]));
    }
}

TEST_F(NodeTableTest, findsNothingByANumberThatItDidNotGive)
{
    const MMC_COOKIE cookie = m_table.add(node(0));
    EXPECT_EQ(nullptr, m_table.find(0));
    EXPECT_EQ(nullptr, m_table.find(MMC_MULTI_SELECT_COOKIE));
    EXPECT_EQ(nullptr, m_table.find(MMC_WINDOW_COOKIE));
    EXPECT_EQ(nullptr, m_table.find(-1));
    EXPECT_EQ(nullptr, m_table.find(cookie + 1)) << "a place that there is not";
    EXPECT_EQ(nullptr, m_table.find(cookie & 0xFFFFFFFF));
    EXPECT_EQ(nullptr, m_table.find(reinterpret_cast<MMC_COOKIE>(&node(0))));
}

TEST_F(NodeTableTest, doesNotFollowTheNumberOfANodeThatIsGone)
{
    const MMC_COOKIE first = m_table.add(node(0));
    const MMC_COOKIE second = m_table.add(node(1));
    const MMC_COOKIE third = m_table.add(node(2));
    m_table.remove(first);
    m_table.remove(third);
    EXPECT_EQ(nullptr, m_table.find(first));
    EXPECT_EQ(&node(1), m_table.find(second));
    EXPECT_EQ(nullptr, m_table.find(third));

    // Others have their places now, and other numbers.
    const MMC_COOKIE fourth = m_table.add(node(3));
    const MMC_COOKIE fifth = m_table.add(node(4));
    EXPECT_EQ(nullptr, m_table.find(first));
    EXPECT_EQ(nullptr, m_table.find(third));
    EXPECT_EQ(&node(3), m_table.find(fourth));
    EXPECT_EQ(&node(4), m_table.find(fifth));
}

TEST_F(NodeTableTest, givesAPlaceAwayAgain)
{
    const MMC_COOKIE first = m_table.add(node(0));
    for (int i = 0; i < 1000; ++i)
    {
        m_table.remove(m_table.add(node(1)));
    }
    const MMC_COOKIE last = m_table.add(node(2));
    // The lower half of a number is the place.
    EXPECT_EQ(static_cast<DWORD>(first) + 1, static_cast<DWORD>(last));
}

} // namespace
