#include "kit/ModalWindow.h"

#include "kit/windows.h"

#include <gtest/gtest.h>

namespace Acceptance
{

std::wstring ModalWindow::caption() const
{
    return windowText(m_window);
}

HWND ModalWindow::control(int id) const
{
    const HWND control = GetDlgItem(m_window, id);
    if (!control)
    {
        ADD_FAILURE() << "no control " << id << " in " << narrow(describeWindow(m_window));
    }
    return control;
}

HWND ModalWindow::usable(int id) const
{
    const HWND found = control(id);
    if (found && (!IsWindowVisible(found) || !IsWindowEnabled(found)))
    {
        ADD_FAILURE() << "control " << id << " is hidden or disabled in " << narrow(describeWindow(m_window));
    }
    return found;
}

std::wstring ModalWindow::text(int id) const
{
    return windowText(control(id));
}

int ModalWindow::focus() const
{
    const HWND focus = GetFocus();
    return focus && IsChild(m_window, focus) ? GetDlgCtrlID(focus) : 0;
}

std::vector<int> ModalWindow::buttons() const
{
    std::vector<int> ids;
    for (const HWND child : childWindows(m_window))
    {
        if (windowClass(child) == L"Button" && IsWindowVisible(child) &&
            (SendMessageW(child, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)))
        {
            ids.push_back(GetDlgCtrlID(child));
        }
    }
    return ids;
}

void ModalWindow::type(int id, const std::wstring& text)
{
    const HWND edit = usable(id);
    SetFocus(edit);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
    for (const wchar_t character : text)
    {
        SendMessageW(edit, WM_CHAR, character, 1);
    }
}

void ModalWindow::setChecked(int id, bool wanted)
{
    const HWND box = usable(id);
    if (checked(id) != wanted)
    {
        SendMessageW(box, BM_CLICK, 0, 0);
    }
    EXPECT_EQ(wanted, checked(id)) << "control " << id;
}

void ModalWindow::click(int button)
{
    SendMessageW(usable(button), BM_CLICK, 0, 0);
}

void ModalWindow::choose(int list, int index)
{
    const HWND entries = usable(list);
    SetFocus(entries);
    SendMessageW(entries, WM_KEYDOWN, VK_HOME, 1);
    for (int i = 0; i < index; ++i)
    {
        SendMessageW(entries, WM_KEYDOWN, VK_DOWN, 1);
    }
}

void ModalWindow::press(int button)
{
    post(usable(button), BM_CLICK, 0, 0);
}

void ModalWindow::key(WORD virtualKey)
{
    post(GetFocus(), WM_KEYDOWN, virtualKey, 1);
}

void ModalWindow::close()
{
    post(m_window, WM_CLOSE, 0, 0);
}

void ModalWindow::post(HWND target, UINT message, WPARAM wparam, LPARAM lparam)
{
    m_acted = PostMessageW(target, message, wparam, lparam) != FALSE;
}

} // namespace Acceptance
