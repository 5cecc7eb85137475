// Copying, with the keyboard and the menu.
#include "WindowTest.h"

#include "resource.h"

#include <commctrl.h>

using namespace Console;

class Copying : public WindowTest
{
  protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        settings.viewOptions = MMC_VIEW_OPTIONS_MULTISELECT;
        settings.copies = false;
        if (OpenClipboard(nullptr))
        {
            EmptyClipboard();
            CloseClipboard();
        }
    }

    static std::wstring clipboard()
    {
        std::wstring text;
        if (OpenClipboard(nullptr))
        {
            const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
            if (const auto* const characters = static_cast<const wchar_t*>(memory ? GlobalLock(memory) : nullptr))
            {
                text = characters;
                GlobalUnlock(memory);
            }
            CloseClipboard();
        }
        return text;
    }

    void selectRows(const std::vector<int>& rows)
    {
        selectRow(rows.front());
        for (const int row : rows)
        {
            ListView_SetItemState(list(), row, LVIS_SELECTED, LVIS_SELECTED);
        }
        settle();
    }
};

TEST_F(Copying, TakesTheSelectedRowsAsATable)
{
    open(0);
    selectRows({1, 3});
    press(list(), 'C', {VK_CONTROL});

    EXPECT_EQ(clipboard(), L"Row 1\t1\t\r\nRow 3\t3\t");
}

TEST_F(Copying, KeepsEveryCellInItsPlace)
{
    settings.rowName = L"a\tb\r\nc ";
    open(0);
    selectRows({2});
    press(list(), 'C', {VK_CONTROL});

    EXPECT_EQ(clipboard(), L"a b  c 2\t2\t");
}

TEST_F(Copying, LeavesOutHiddenColumns)
{
    open(0);
    view().setColumnWidth(1, 0);
    selectRows({2});
    press(list(), 'C', {VK_CONTROL});

    EXPECT_EQ(clipboard(), L"Row 2\t2\t") << "a narrow column is none that the snap-in hides";
}

TEST_F(Copying, TakesTheNameOfTheNodeInTheTree)
{
    open(1);
    press(tree(), 'C', {VK_CONTROL});
    EXPECT_EQ(clipboard(), host->tree().text(child(1)));
}

TEST_F(Copying, TakesTheNameOfTheNodeWhereNoRowIsSelected)
{
    open(1);
    SetFocus(list());
    settle();
    press(list(), 'C', {VK_CONTROL});
    EXPECT_EQ(clipboard(), host->tree().text(child(1)));
}

TEST_F(Copying, IsTheSnapInsWhereItHasTheVerb)
{
    settings.copies = true;
    open(0);
    selectRows({1});
    ASSERT_TRUE(view().verb(MMC_VERB_COPY).enabled);
    press(list(), 'C', {VK_CONTROL});

    EXPECT_EQ(clipboard(), L"");
}

TEST_F(Copying, StandsInTheEditMenu)
{
    open(0);
    selectRows({4});
    const HMENU edit = GetSubMenu(GetMenu(window().handle()), 2);
    SendMessageW(window().handle(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(edit), 2);
    for (const int command : {ID_EDIT_COPY, ID_EDIT_SELECT_ALL})
    {
        EXPECT_EQ(GetMenuState(edit, static_cast<UINT>(command), MF_BYCOMMAND) & MF_GRAYED, 0U) << command;
    }
    SendMessageW(window().handle(), WM_COMMAND, ID_EDIT_SELECT_ALL, 0);
    settle();
    SendMessageW(window().handle(), WM_COMMAND, ID_EDIT_COPY, 0);
    settle();
    EXPECT_EQ(clipboard(), L"Row 0\t0\t\r\nRow 1\t1\t\r\nRow 2\t2\t\r\nRow 3\t3\t\r\nRow 4\t4\t");
}

TEST_F(Copying, CannotSelectAllWhereOneRowIsSelectedAtATime)
{
    settings.viewOptions = 0;
    open(0);
    const HMENU edit = GetSubMenu(GetMenu(window().handle()), 2);
    SendMessageW(window().handle(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(edit), 2);
    EXPECT_NE(GetMenuState(edit, ID_EDIT_SELECT_ALL, MF_BYCOMMAND) & MF_GRAYED, 0U);
}
