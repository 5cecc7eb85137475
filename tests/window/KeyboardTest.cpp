// Keys reach the snap-in.
#include "WindowTest.h"

#include <commctrl.h>

using namespace Console;

class Keyboard : public WindowTest
{
};

TEST_F(Keyboard, F5Refreshes)
{
    open(0);
    press(tree(), VK_F5);

    EXPECT_EQ(notified(L"MMCN_REFRESH"), 1);
}

TEST_F(Keyboard, DeleteRemovesTheSelectedRow)
{
    settings.rows = 5;
    open(0);
    selectRow(2);
    press(list(), VK_DELETE);

    EXPECT_EQ(notified(L"MMCN_DELETE"), 1);
    EXPECT_EQ(settings.rowsDeleted, 1);
    EXPECT_EQ(ListView_GetItemCount(list()), 4);
}

TEST_F(Keyboard, EnterOpensTheRow)
{
    settings.openOnDoubleClick = true;
    open(0);
    selectRow(1);
    press(list(), VK_RETURN);

    EXPECT_EQ(notified(L"MMCN_DBLCLICK"), 1);
    EXPECT_EQ(view().selectedNode(), child(1));
    EXPECT_EQ(controller().tree().marked(), child(1));
}

TEST_F(Keyboard, AltEnterAsksForTheProperties)
{
    open(0);
    selectRow(1);
    press(list(), VK_RETURN, {VK_MENU});

    EXPECT_EQ(recorder.count(L"IExtendPropertySheet::QueryPagesFor"), 1);
    EXPECT_EQ(notified(L"MMCN_DBLCLICK"), 0);
}

TEST_F(Keyboard, F2RenamesTheRowInPlace)
{
    open(0);
    selectRow(1);
    press(list(), VK_F2);
    const HWND edit = ListView_GetEditControl(list());
    ASSERT_NE(edit, nullptr);
    SetWindowTextW(edit, L"Other");
    // While a name is edited, keys of the window belong to the text.
    press(edit, VK_DELETE);
    EXPECT_EQ(notified(L"MMCN_DELETE"), 0);
    press(edit, VK_RETURN);

    // Delete took the first letter.
    EXPECT_STREQ(settings.renamedTo, L"ther");
}

TEST_F(Keyboard, F2RenamesTheNodeInPlace)
{
    open(0);
    press(tree(), VK_F2);
    const HWND edit = TreeView_GetEditControl(tree());
    ASSERT_NE(edit, nullptr);
    SetWindowTextW(edit, L"Branch");
    press(edit, VK_RETURN);

    EXPECT_STREQ(settings.renamedTo, L"Branch");
}

TEST_F(Keyboard, ShiftF10OpensTheMenuOfEitherPane)
{
    open(0);
    press(tree(), VK_F10, {VK_SHIFT}, WM_CANCELMODE);
    EXPECT_GE(recorder.count(L"IExtendContextMenu::AddMenuItems"), 1);

    recorder.clear();
    selectRow(0);
    press(list(), VK_F10, {VK_SHIFT}, WM_CANCELMODE);
    EXPECT_GE(recorder.count(L"IExtendContextMenu::AddMenuItems"), 1);
}

TEST_F(Keyboard, TabGoesToTheOtherPaneAndBack)
{
    open(0);
    ASSERT_TRUE(controller().treeHasFocus());

    press(tree(), VK_TAB);
    EXPECT_FALSE(controller().treeHasFocus());
    press(list(), VK_TAB, {VK_SHIFT});
    EXPECT_TRUE(controller().treeHasFocus());
}

TEST_F(Keyboard, ArrowsInTheTreeShowTheNextNode)
{
    open(0);
    press(tree(), VK_DOWN);

    EXPECT_EQ(view().selectedNode(), child(1));
    EXPECT_EQ(notified(L"MMCN_SHOW"), 2); // the old one is left, the new one is shown
}

TEST_F(Keyboard, BackspaceGoesUpAndAltLeftGoesBack)
{
    open(0);
    press(tree(), VK_BACK);
    EXPECT_EQ(view().selectedNode(), root());
    press(tree(), VK_LEFT, {VK_MENU});
    EXPECT_EQ(view().selectedNode(), child(0));
    press(tree(), VK_RIGHT, {VK_MENU});
    EXPECT_EQ(view().selectedNode(), root());
}

TEST_F(Keyboard, CtrlASelectsAllRowsWhereTheListAllowsIt)
{
    settings.viewOptions = MMC_VIEW_OPTIONS_MULTISELECT;
    settings.rows = 7;
    open(0);
    selectRow(0);
    press(list(), 'A', {VK_CONTROL});

    EXPECT_EQ(view().selectedRows().size(), 7U);
    EXPECT_EQ(settings.multiSelected, 7);
}

TEST_F(Keyboard, CtrlADoesNothingInASingleSelectionList)
{
    open(0);
    selectRow(0);
    press(list(), 'A', {VK_CONTROL});

    EXPECT_EQ(view().selectedRows(), std::vector<int>{0});
}
