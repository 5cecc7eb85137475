// The window without eyes and without a mouse: what a screen reader says, and that the keyboard reaches everything.
#include "WindowTest.h"

#include "resource.h"

#include <commctrl.h>

using namespace Console;

class Accessibility : public WindowTest
{
  protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        // Over a button the mouse would say which one is hot.
        SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    }

    HWND toolbar() const { return FindWindowExW(strip(), nullptr, TOOLBARCLASSNAMEW, nullptr); }
    HWND strip() const { return FindWindowExW(window().handle(), nullptr, L"TConsole.ToolbarStrip", nullptr); }

    TBBUTTON button(int place) const
    {
        TBBUTTON button{};
        SendMessageW(toolbar(), TB_GETBUTTON, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&button));
        return button;
    }
    int buttonCount() const { return static_cast<int>(SendMessageW(toolbar(), TB_BUTTONCOUNT, 0, 0)); }
    std::wstring buttonText(int place) const
    {
        wchar_t text[100] = L"";
        const auto command = static_cast<WPARAM>(button(place).idCommand);
        SendMessageW(toolbar(), TB_GETBUTTONTEXTW, command, reinterpret_cast<LPARAM>(text));
        return text;
    }
    // The command of the button that the keyboard is at; 0 for none.
    int current() const
    {
        const LRESULT place = SendMessageW(toolbar(), TB_GETHOTITEM, 0, 0);
        return place < 0 ? 0 : button(static_cast<int>(place)).idCommand;
    }
};

TEST_F(Accessibility, TreeAndListHaveLabelsBeforeThemWhichAreNotSeen)
{
    open(0);
    for (const HWND control : {tree(), list()})
    {
        const HWND label = GetWindow(control, GW_HWNDPREV);
        ASSERT_NE(label, nullptr);
        EXPECT_EQ(textOf(label), control == tree() ? L"Console tree" : L"Result list");
        EXPECT_FALSE(IsWindowVisible(label));
    }
}

TEST_F(Accessibility, EveryButtonOfTheToolbarHasAText)
{
    open(0);
    int named = 0;
    for (int i = 0; i < buttonCount(); ++i)
    {
        if ((button(i).fsStyle & BTNS_SEP) == 0)
        {
            EXPECT_NE(buttonText(i), L"") << button(i).idCommand;
            ++named;
        }
    }
    // Six of the console's own; the others are the snap-in's.
    EXPECT_GT(named, 6);
    EXPECT_EQ(buttonText(0), L"Back");
}

TEST_F(Accessibility, F6GoesRoundTreeListAndToolbar)
{
    open(0);
    SetFocus(tree());
    press(tree(), VK_F6);
    EXPECT_EQ(GetFocus(), list());
    press(list(), VK_F6);
    EXPECT_EQ(GetFocus(), toolbar());
    press(toolbar(), VK_F6);
    EXPECT_EQ(GetFocus(), tree());
    press(tree(), VK_F6, {VK_SHIFT});
    EXPECT_EQ(GetFocus(), toolbar());
}

TEST_F(Accessibility, F6LeavesOutAToolbarThatIsNotShown)
{
    open(0);
    SendMessageW(window().handle(), WM_COMMAND, ID_VIEW_TOOLBAR, 0);
    SetFocus(list());
    press(list(), VK_F6);
    EXPECT_EQ(GetFocus(), tree());
}

TEST_F(Accessibility, ArrowsGoFromOneEnabledButtonToTheNext)
{
    open(0);
    selectRow(0);
    SetFocus(toolbar());
    // Back and Forward are disabled: nothing was shown before. Up comes before a separator.
    EXPECT_EQ(current(), ID_GO_BACK);
    press(toolbar(), VK_RIGHT);
    EXPECT_EQ(current(), ID_GO_UP);
    press(toolbar(), VK_RIGHT);
    EXPECT_EQ(current(), ID_EDIT_DELETE);
    press(toolbar(), VK_LEFT);
    EXPECT_EQ(current(), ID_GO_UP);
    press(toolbar(), VK_END);
    EXPECT_GE(current(), ID_SNAPIN_BUTTON_FIRST);
    press(toolbar(), VK_HOME);
    EXPECT_EQ(current(), ID_GO_BACK);
    press(toolbar(), VK_ESCAPE);
    EXPECT_EQ(GetFocus(), list());
    EXPECT_EQ(current(), 0);
}

TEST_F(Accessibility, EnterAndSpacePressTheButton)
{
    for (const WORD key : {WORD{VK_RETURN}, WORD{VK_SPACE}})
    {
        open(0);
        SetFocus(toolbar());
        while (current() < ID_SNAPIN_BUTTON_FIRST)
        {
            const int before = current();
            press(toolbar(), VK_RIGHT);
            ASSERT_NE(current(), before);
        }
        settings.lastCommand = 0;
        press(toolbar(), key);
        EXPECT_EQ(settings.lastCommand, 50);
    }
}

TEST_F(Accessibility, TypingALetterGoesToTheNextRowThatBeginsSo)
{
    open(0);
    selectRow(3);
    PostMessageW(list(), WM_CHAR, L'R', 1);
    settle();
    EXPECT_EQ(view().selectedRows(), std::vector<int>{4});
}

// What the list asks for once several letters were typed one soon after another; how soon is the list's own business.
TEST_F(Accessibility, SeveralLettersAreOneSearchThatGoesRound)
{
    settings.rows = 30;
    open(0);
    const auto found = [&](const wchar_t* typed, int from)
    {
        LVFINDINFOW search{};
        search.flags = LVFI_STRING | LVFI_PARTIAL | LVFI_WRAP;
        search.psz = typed;
        return ListView_FindItem(list(), from - 1, &search);
    };
    EXPECT_EQ(found(L"row 2", 0), 2);
    EXPECT_EQ(found(L"ROW 17", 3), 17);
    EXPECT_EQ(found(L"row 5", 28), 5);
    EXPECT_EQ(found(L"rowboat", 0), -1);
}
