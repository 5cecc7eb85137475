#include "WindowPlacement.h"

#include <gtest/gtest.h>

#include <array>

using namespace Console;

namespace
{

std::array<LONG, 4> edges(const RECT& rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

// A monitor with a taskbar below, and a second one to its left.
const std::vector<RECT> monitors{{0, 0, 1920, 1040}, {-1280, 0, 0, 1024}};

std::array<LONG, 4> placed(const RECT& window)
{
    return edges(keepOnScreen(window, monitors));
}

using Edges = std::array<LONG, 4>;

} // namespace

TEST(OnScreen, CountsFromTheCornerOfTheMonitorWhereverTheTaskbarIs)
{
    const auto place = [](const RECT& monitor, const RECT& work) {
        return edges(onScreen({100, 50, 900, 650}, {sizeof(MONITORINFO), monitor, work, 0}));
    };
    EXPECT_EQ(place({0, 0, 1920, 1080}, {0, 0, 1920, 1040}), (Edges{100, 50, 900, 650}));
    EXPECT_EQ(place({0, 0, 1920, 1080}, {60, 30, 1920, 1080}), (Edges{160, 80, 960, 680}));
    EXPECT_EQ(place({-1280, 0, 0, 1024}, {-1250, 0, 0, 1024}), (Edges{130, 50, 930, 650}));
}

TEST(KeepOnScreen, LeavesAWindowThatIsSeen)
{
    EXPECT_EQ(placed({100, 100, 900, 700}), (Edges{100, 100, 900, 700}));
    EXPECT_EQ(placed({-1200, 50, -400, 650}), (Edges{-1200, 50, -400, 650}));
}

TEST(KeepOnScreen, BringsBackAWindowOfAMonitorThatIsGone)
{
    EXPECT_EQ(placed({3000, 2000, 3800, 2600}), (Edges{1120, 440, 1920, 1040}));
}

TEST(KeepOnScreen, PullsTheCaptionOntoTheScreen)
{
    EXPECT_EQ(placed({100, -300, 900, 300}), (Edges{100, 0, 900, 600}));
    EXPECT_EQ(placed({1800, 900, 2600, 1500}), (Edges{1120, 440, 1920, 1040}));
}

TEST(KeepOnScreen, UsesTheMonitorThatTheWindowCoversMostOf)
{
    EXPECT_EQ(placed({-700, 100, 100, 700}), (Edges{-800, 100, 0, 700}));
}

TEST(KeepOnScreen, MakesAWindowThatIsTooLargeFit)
{
    EXPECT_EQ(placed({-100, -100, 4000, 3000}), (Edges{0, 0, 1920, 1040}));
}

TEST(WindowPlacement, ComesBackFromItsText)
{
    WindowPlacement placement;
    placement.normal = {-5, 20, 995, 660};
    placement.maximized = true;
    placement.treeWidth = 240;
    placement.statusBar = false;

    const auto copy = WindowPlacement::fromText(placement.toText());

    ASSERT_TRUE(copy);
    EXPECT_EQ(edges(copy->normal), (Edges{-5, 20, 995, 660}));
    EXPECT_TRUE(copy->maximized);
    EXPECT_EQ(copy->treeWidth, 240);
    EXPECT_TRUE(copy->toolbar);
    EXPECT_FALSE(copy->statusBar);
}

TEST(WindowPlacement, RefusesTextsThatAreNotPlacements)
{
    for (const wchar_t* text :
         {L"", L"1 2 3", L"0 0 800 600 0 200 1 x", L"0 0 10 10 0 200 1 1", L"0 0 800 600 0 -1 1 1",
          L"0 0 99999999999999999999 600 0 200 1 1", L"-2147483648 0 2147483647 600 0 200 1 1"})
    {
        EXPECT_FALSE(WindowPlacement::fromText(text)) << testing::PrintToString(std::wstring(text));
    }
}
