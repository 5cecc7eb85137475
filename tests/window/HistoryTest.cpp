#include "History.h"

#include <gtest/gtest.h>

using namespace Console;

namespace
{

constexpr auto a = static_cast<NodeId>(1);
constexpr auto b = static_cast<NodeId>(2);
constexpr auto c = static_cast<NodeId>(3);

History visited(std::initializer_list<NodeId> nodes)
{
    History history;
    for (const NodeId node : nodes)
    {
        history.visit(node);
    }
    return history;
}

} // namespace

TEST(History, GoesBackAndForward)
{
    History history = visited({a, b});

    EXPECT_EQ(history.goBack(), a);
    history.visit(a); // the window reports what it shows, also when going back
    EXPECT_TRUE(history.canGoForward());
    EXPECT_EQ(history.goForward(), b);
    EXPECT_FALSE(history.canGoForward());
}

TEST(History, EndsAtBothEnds)
{
    History history = visited({a});

    EXPECT_FALSE(history.canGoBack());
    EXPECT_EQ(history.goBack(), NodeId::none);
    EXPECT_EQ(history.goForward(), NodeId::none);
}

TEST(History, ANewNodeForgetsWhatLayAhead)
{
    History history = visited({a, b});
    history.goBack();
    history.visit(c);

    EXPECT_FALSE(history.canGoForward());
    EXPECT_EQ(history.goBack(), a);
}

TEST(History, LeavesOutNodesThatAreGone)
{
    History history = visited({a, b, a, c});
    history.forget(b);

    EXPECT_EQ(history.goBack(), a);
    EXPECT_FALSE(history.canGoBack());
    EXPECT_EQ(history.goForward(), c);
}

TEST(History, ForgetsTheNodeThatIsShown)
{
    History history = visited({a, b});
    history.forget(b);
    history.visit(c);

    EXPECT_EQ(history.goBack(), a);
}
