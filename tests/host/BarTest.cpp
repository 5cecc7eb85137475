#include "HostTest.h"

using namespace Console;

namespace
{

class BarTest : public HostTest
{
};

} // namespace

TEST_F(BarTest, showsAttachedBarsOnce)
{
    view->selectNode(root());
    const auto bars = view->toolbars();
    ASSERT_EQ(bars.size(), 1u);
    ASSERT_EQ(bars[0].buttons.size(), 3u);
    EXPECT_EQ(bars[0].buttons[0].text, L"Go");
    EXPECT_EQ(bars[0].buttons[0].tooltip, L"Goes");
    EXPECT_EQ(bars[0].buttons[0].image, 0);
    EXPECT_TRUE(bars[0].buttons[1].separator);
    EXPECT_TRUE(bars[0].buttons[2].checkable);
    EXPECT_TRUE(bars[0].buttons[2].checked) << "selected in the tree";
    EXPECT_EQ(ImageList_GetImageCount(bars[0].images), 2);
    const auto buttons = view->menuButtons();
    ASSERT_EQ(buttons.size(), 1u);
    EXPECT_EQ(buttons[0].text, L"Tools");
}

TEST_F(BarTest, buttonStatesFollowTheSelection)
{
    view->selectNode(root());
    listener.toolbars = 0;
    view->selectRows({3});
    EXPECT_FALSE(view->toolbars()[0].buttons[2].checked);
    EXPECT_GT(listener.toolbars, 0);
}

TEST_F(BarTest, pressingAButtonTellsTheSnapIn)
{
    view->selectNode(root());
    recorder.clear();
    view->pressToolbarButton(view->toolbars()[0].id, 50);
    EXPECT_EQ(settings.lastCommand, 50);
    ASSERT_EQ(recorder.count(L"IExtendControlbar::ControlbarNotify"), 1);
    view->pressToolbarButton(view->toolbars()[0].id, 77);
    view->pressToolbarButton(77, 50);
    EXPECT_EQ(recorder.count(L"IExtendControlbar::ControlbarNotify"), 1) << "no such button, no such bar";
}

TEST_F(BarTest, pressingAMenuButtonSaysWhere)
{
    view->selectNode(root());
    const auto buttons = view->menuButtons();
    view->pressMenuButton(buttons[0].id, buttons[0].command, 7, 3);
    EXPECT_EQ(settings.lastCommand, 60 * 1000 + 7 * 10 + 3);
}

TEST_F(BarTest, noBarsWithoutANode)
{
    view->selectNode(root());
    view->selectNode(NodeId::none);
    EXPECT_TRUE(view->toolbars().empty());
    EXPECT_TRUE(view->menuButtons().empty());
}

TEST_F(BarTest, everyViewHasItsOwnBars)
{
    Listener otherListener;
    auto other = host->openView(otherListener);
    view->selectNode(root());
    other->selectNode(root());
    EXPECT_EQ(view->toolbars().size(), 1u);
    EXPECT_EQ(other->toolbars().size(), 1u);
    other->selectRows({3});
    EXPECT_FALSE(other->toolbars()[0].buttons[2].checked);
    EXPECT_TRUE(view->toolbars()[0].buttons[2].checked);
}

TEST_F(BarTest, aStateBeforeAttachingIsRefused)
{
    complaintsExpected = true;
    settings.misdeed = Foreign::Misdeed::buttonBeforeAttach;
    view->selectNode(root());
    EXPECT_TRUE(FAILED(settings.consoleResult));
    EXPECT_TRUE(complainedAbout(L"SetButtonState was called while the toolbar was not attached"));
}
