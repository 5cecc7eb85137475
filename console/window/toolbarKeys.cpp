#include "toolbarKeys.h"

#include <commctrl.h>

namespace Console
{

namespace
{

constexpr UINT_PTR subclass = 1;
constexpr int none = -1;

int buttonCount(HWND toolbar)
{
    return static_cast<int>(SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0));
}

TBBUTTON buttonAt(HWND toolbar, int place)
{
    TBBUTTON button{};
    SendMessageW(toolbar, TB_GETBUTTON, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&button));
    return button;
}

bool isUsable(const TBBUTTON& button)
{
    return (button.fsStyle & BTNS_SEP) == 0 && (button.fsState & TBSTATE_ENABLED) != 0 &&
           (button.fsState & TBSTATE_HIDDEN) == 0;
}

// The hot button is the one that the keyboard is at.
int hotButton(HWND toolbar)
{
    return static_cast<int>(SendMessageW(toolbar, TB_GETHOTITEM, 0, 0));
}

void makeHot(HWND toolbar, int place)
{
    SendMessageW(toolbar, TB_SETHOTITEM, static_cast<WPARAM>(static_cast<INT_PTR>(place)), 0);
}

// To the first usable button from there on; stays when there is none.
void go(HWND toolbar, int place, int step)
{
    for (; place >= 0 && place < buttonCount(toolbar); place += step)
    {
        if (isUsable(buttonAt(toolbar, place)))
        {
            makeHot(toolbar, place);
            return;
        }
    }
}

void press(HWND toolbar)
{
    const int place = hotButton(toolbar);
    if (place == none || !isUsable(buttonAt(toolbar, place)))
    {
        return;
    }
    const TBBUTTON button = buttonAt(toolbar, place);
    if ((button.fsStyle & BTNS_WHOLEDROPDOWN) != 0)
    {
        NMTOOLBARW drop{};
        drop.hdr = {toolbar, static_cast<UINT_PTR>(GetDlgCtrlID(toolbar)), static_cast<UINT>(TBN_DROPDOWN)};
        drop.iItem = button.idCommand;
        SendMessageW(GetParent(toolbar), WM_NOTIFY, drop.hdr.idFrom, reinterpret_cast<LPARAM>(&drop));
        return;
    }
    if ((button.fsStyle & BTNS_CHECK) != 0)
    {
        // As the bar itself does when the mouse presses it.
        SendMessageW(toolbar, TB_CHECKBUTTON, static_cast<WPARAM>(button.idCommand),
                     (button.fsState & TBSTATE_CHECKED) == 0);
    }
    SendMessageW(GetParent(toolbar), WM_COMMAND, static_cast<WPARAM>(button.idCommand),
                 reinterpret_cast<LPARAM>(toolbar));
}

// False for keys that are none of the bar's.
bool take(HWND toolbar, WPARAM key)
{
    switch (key)
    {
    case VK_RIGHT:
    case VK_DOWN:
        go(toolbar, hotButton(toolbar) + 1, 1);
        return true;
    case VK_LEFT:
    case VK_UP:
        go(toolbar, hotButton(toolbar) - 1, -1);
        return true;
    case VK_HOME:
        go(toolbar, 0, 1);
        return true;
    case VK_END:
        go(toolbar, buttonCount(toolbar) - 1, -1);
        return true;
    case VK_RETURN:
    case VK_SPACE:
        press(toolbar);
        return true;
    case VK_ESCAPE:
        SetFocus(GetAncestor(toolbar, GA_ROOT));
        return true;
    default:
        return false;
    }
}

LRESULT CALLBACK procedure(HWND toolbar, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    switch (message)
    {
    case WM_SETFOCUS:
        go(toolbar, 0, 1);
        break;
    case WM_KILLFOCUS:
        makeHot(toolbar, none);
        break;
    case WM_KEYDOWN:
        if (take(toolbar, wParam))
        {
            return 0;
        }
        break;
    case WM_NCDESTROY:
        RemoveWindowSubclass(toolbar, procedure, subclass);
        break;
    default:
        break;
    }
    return DefSubclassProc(toolbar, message, wParam, lParam);
}

} // namespace

void serveKeys(HWND toolbar)
{
    SetWindowSubclass(toolbar, procedure, subclass, 0);
}

} // namespace Console
