#include "WindowTest.h"

#include "TextLister.h"
#include "resource.h"

#include <commctrl.h>

using namespace Console;

class TheWindow : public WindowTest
{
  protected:
    HWND descendant(const wchar_t* type) const { return descendant(window().handle(), type); }
    static HWND descendant(HWND ancestor, const wchar_t* type)
    {
        struct Search
        {
            std::wstring type;
            HWND found = nullptr;
        } search{type};
        EnumChildWindows(
            ancestor,
            [](HWND child, LPARAM lParam)
            {
                auto& wanted = *reinterpret_cast<Search*>(lParam);
                wchar_t name[64];
                GetClassNameW(child, name, 64);
                wanted.found = wanted.found == nullptr && wanted.type == name ? child : wanted.found;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&search));
        return search.found;
    }

    std::wstring statusText(int section) const
    {
        wchar_t text[200] = L"";
        SendMessageW(descendant(STATUSCLASSNAMEW), SB_GETTEXTW, static_cast<WPARAM>(section),
                     reinterpret_cast<LPARAM>(text));
        return text;
    }
};

TEST_F(TheWindow, HasTheSnapInsNameInItsTitle)
{
    open();

    EXPECT_EQ(textOf(window().handle()), host->tree().text(root()) + L" - TConsole");
}

TEST_F(TheWindow, ShowsColumnsRowsStatusAndDescription)
{
    settings.rows = 4;
    open(1);

    const HWND header = ListView_GetHeader(list());
    ASSERT_EQ(Header_GetItemCount(header), 3);
    EXPECT_EQ(ListView_GetColumnWidth(list(), 0), 180);
    EXPECT_EQ(ListView_GetColumnWidth(list(), 1), 80);
    EXPECT_EQ(ListView_GetItemCount(list()), 4);
    wchar_t text[100] = L"";
    ListView_GetItemText(list(), 3, 0, text, 100);
    EXPECT_STREQ(text, L"Row 3");
    EXPECT_EQ(statusText(0), L"100% full");
    EXPECT_EQ(statusText(2), L"ready");
    EXPECT_EQ(SendMessageW(descendant(PROGRESS_CLASSW), PBM_GETPOS, 0, 0), 42);
    EXPECT_EQ(textOf(descendant(controller().results().handle(), WC_STATICW)), L"Things");
}

TEST_F(TheWindow, MirrorsTheTree)
{
    settings.children = 3;
    open();
    const HTREEITEM top = TreeView_GetRoot(tree());
    ASSERT_NE(top, nullptr);
    std::vector<std::wstring> names;
    for (HTREEITEM item = TreeView_GetChild(tree(), top); item != nullptr; item = TreeView_GetNextSibling(tree(), item))
    {
        wchar_t text[100] = L"";
        TVITEMW entry{};
        entry.mask = TVIF_TEXT;
        entry.hItem = item;
        entry.pszText = text;
        entry.cchTextMax = 100;
        TreeView_GetItem(tree(), &entry);
        names.emplace_back(text);
    }

    const std::vector<std::wstring> expected{host->tree().text(child(0)), host->tree().text(child(1)),
                                             host->tree().text(child(2))};
    EXPECT_EQ(names, expected);
}

TEST_F(TheWindow, FillsTheActionMenuWhenItOpensAndRunsItsCommands)
{
    open(0);
    SetFocus(tree());
    const HMENU action = GetSubMenu(GetMenu(window().handle()), 1);
    SendMessageW(window().handle(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(action), 1);
    ASSERT_GT(GetMenuItemCount(action), 1);
    wchar_t text[100] = L"";
    GetMenuStringW(action, 0, text, 100, MF_BYPOSITION);
    EXPECT_STREQ(text, L"&Add...");
    EXPECT_TRUE(GetMenuState(GetSubMenu(action, 2), 0, MF_BYPOSITION) & MF_CHECKED);

    const UINT command = GetMenuItemID(action, 0);
    // As the menu loop does: it ends, and the command is posted.
    PostMessageW(window().handle(), WM_COMMAND, command, 0);
    SendMessageW(window().handle(), WM_EXITMENULOOP, FALSE, 0);
    settle();

    EXPECT_EQ(settings.lastCommand, 1);
}

TEST_F(TheWindow, ShowsTheStatusTextOfAMenuItem)
{
    open(0);
    const HMENU action = GetSubMenu(GetMenu(window().handle()), 1);
    SendMessageW(window().handle(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(action), 1);
    SendMessageW(window().handle(), WM_MENUSELECT, MAKEWPARAM(GetMenuItemID(action, 0), MF_HILITE),
                 reinterpret_cast<LPARAM>(action));
    wchar_t text[100] = L"";
    SendMessageW(descendant(STATUSCLASSNAMEW), SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"does it");

    SendMessageW(window().handle(), WM_EXITMENULOOP, FALSE, 0);
    settle();
    EXPECT_FALSE(SendMessageW(descendant(STATUSCLASSNAMEW), SB_ISSIMPLE, 0, 0));
}

TEST_F(TheWindow, PressesTheSnapInsToolbarButtons)
{
    open(0);
    const HWND bar = descendant(TOOLBARCLASSNAMEW);
    TBBUTTON button{};
    int number = 0;
    for (int i = 0; i < SendMessageW(bar, TB_BUTTONCOUNT, 0, 0); ++i)
    {
        SendMessageW(bar, TB_GETBUTTON, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&button));
        if (button.idCommand >= ID_SNAPIN_BUTTON_FIRST && number == 0)
        {
            number = button.idCommand;
        }
    }
    ASSERT_NE(number, 0);
    SendMessageW(GetParent(bar), WM_COMMAND, static_cast<WPARAM>(number), reinterpret_cast<LPARAM>(bar));
    settle();

    EXPECT_EQ(settings.lastCommand, 50);
}

TEST_F(TheWindow, SaysWhyAPaneCannotBeShown)
{
    settings.viewType = L"http://example.com/page.htm";
    open(0);

    EXPECT_FALSE(IsWindowVisible(list()));
    EXPECT_FALSE(view().message().empty());
}

TEST_F(TheWindow, ClosesByItself)
{
    open(0);
    const HWND handle = window().handle();
    PostMessageW(handle, WM_COMMAND, ID_FILE_EXIT, 0);
    windows->run(); // returns when the last window is gone

    EXPECT_FALSE(IsWindow(handle));
}

TEST_F(TheWindow, IsClosedByAltF4FromEitherPane)
{
    for (const bool fromTree : {true, false})
    {
        open(0);
        const HWND handle = window().handle();
        press(fromTree ? tree() : list(), VK_F4, {VK_MENU});
        EXPECT_FALSE(IsWindow(handle));
    }
}

TEST_F(TheWindow, TakesNoCommandsWhileTheSnapInIsBusy)
{
    open(0);
    const int refreshed = notified(L"MMCN_REFRESH");
    controller().act(
        [&]
        {
            // As if the snap-in had a box of its own open, which does not disable the window.
            SendMessageW(window().handle(), WM_COMMAND, ID_VIEW_REFRESH, 0);
            SendMessageW(window().handle(), WM_CLOSE, 0, 0);
            TreeView_SelectItem(tree(), TreeView_GetRoot(tree()));
        });
    settle();

    EXPECT_EQ(notified(L"MMCN_REFRESH"), refreshed);
    ASSERT_TRUE(IsWindow(window().handle()));
    EXPECT_EQ(view().selectedNode(), child(0));
    EXPECT_EQ(controller().tree().marked(), child(0));
}

TEST_F(TheWindow, FollowsTheSnapInsRowsAndNodes)
{
    settings.viewOptions = MMC_VIEW_OPTIONS_MULTISELECT;
    settings.rows = 10;
    open(0);
    ListView_SetItemState(list(), 2, LVIS_SELECTED, LVIS_SELECTED);
    ListView_SetItemState(list(), 5, LVIS_SELECTED, LVIS_SELECTED);
    settle();
    EXPECT_EQ(view().selectedRows(), (std::vector<int>{2, 5}));
    press(list(), VK_DELETE);

    EXPECT_EQ(settings.rowsDeleted, 2);
    EXPECT_EQ(ListView_GetItemCount(list()), 8);
    EXPECT_EQ(ListView_GetSelectedCount(list()), static_cast<UINT>(view().selectedRows().size()));
}

class LargeLists : public TheWindow
{
  protected:
    // Texts, images and the like that the list may ask for: those of the rows that are seen, each cell a few times.
    int allowed() const
    {
        const int rows = ListView_GetCountPerPage(list()) + 2;
        return rows * (Header_GetItemCount(ListView_GetHeader(list())) + 1) * 3;
    }
};

TEST_F(LargeLists, AVirtualListIsAskedOnlyForTheRowsSeen)
{
    settings.viewOptions = MMC_VIEW_OPTIONS_OWNERDATALIST;
    settings.rows = 100'000;
    open();
    controller().selectNode(child(0));
    settle();
    EXPECT_EQ(ListView_GetItemCount(list()), 100'000);
    EXPECT_LE(recorder.count(L"IComponent::GetDisplayInfo"), allowed());

    recorder.clear();
    ListView_EnsureVisible(list(), 99'999, FALSE);
    settle();
    EXPECT_GT(recorder.count(L"IComponent::GetDisplayInfo"), 0);
    EXPECT_LE(recorder.count(L"IComponent::GetDisplayInfo"), allowed());
}

TEST_F(LargeLists, InsertedRowsAreAskedForOnlyWhenSeen)
{
    settings.rows = 20'000;
    open();
    controller().selectNode(child(0));
    settle();

    EXPECT_EQ(ListView_GetItemCount(list()), 20'000);
    EXPECT_LE(recorder.count(L"IComponent::GetDisplayInfo"), allowed());
}

TEST(Listing, OfAForeignSnapInIsExact)
{
    Foreign::Settings& settings = *foreignSnapInSettings();
    settings = Foreign::Settings();
    settings.children = 1;
    settings.rows = 2;
    std::wstring text;
    {
        Host host;
        SnapIn& snapIn = host.addSnapIn(Foreign::snapInClass);
        ViewListener nobody;
        const auto view = host.openView(nobody);
        ASSERT_TRUE(snapIn.load());
        TextLister lister([&](std::wstring_view piece) { text += piece; });
        listNodes(host.tree(), *view, snapIn.root(), lister);
    }
    EXPECT_EQ(text, L"+ Foreign root\n"
                    L"  | Name    | Number | Fitted title\n"
                    L"  | Child 0 |        |\n"
                    L"  | Row 0   | 0      |\n"
                    L"  | Row 1   | 1      |\n"
                    L"  + Child 0\n"
                    L"    | Name  | Number | Fitted title\n"
                    L"    | Row 0 | 0      |\n"
                    L"    | Row 1 | 1      |\n");
}
