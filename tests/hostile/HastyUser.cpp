#include "HastyUser.h"

#include "kit/windows.h"

#include <prsht.h>

#include <utility>

namespace Hostile
{
namespace
{

constexpr UINT lookAround = WM_APP;
constexpr wchar_t className[] = L"HastyUser";
constexpr wchar_t dialogClass[] = L"#32770";

bool isPushButton(HWND control)
{
    return (SendMessageW(control, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

} // namespace

HastyUser* HastyUser::s_user = nullptr;

HastyUser::HastyUser(Use use) : m_use(std::move(use))
{
    WNDCLASSW userClass{};
    userClass.lpfnWndProc = procedure;
    userClass.hInstance = GetModuleHandleW(nullptr);
    userClass.lpszClassName = className;
    RegisterClassW(&userClass);
    m_window = CreateWindowW(className, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, userClass.hInstance, nullptr);
    s_user = this;
    m_hook = SetWindowsHookExW(WH_CBT, hook, nullptr, GetCurrentThreadId());
}

HastyUser::~HastyUser()
{
    UnhookWindowsHookEx(m_hook);
    s_user = nullptr;
    DestroyWindow(m_window);
}

HWND HastyUser::panelOf(HWND dialog)
{
    const auto page = reinterpret_cast<HWND>(SendMessageW(dialog, PSM_GETCURRENTPAGEHWND, 0, 0));
    return IsWindow(page) && GetParent(page) == dialog ? page : dialog;
}

HWND HastyUser::controlOf(HWND dialog, int id)
{
    const HWND control = GetDlgItem(panelOf(dialog), id);
    return control ? control : GetDlgItem(dialog, id);
}

void HastyUser::click(HWND dialog, int id)
{
    const HWND control = controlOf(dialog, id);
    if (control && !isPushButton(control))
    {
        PostMessageW(control, BM_CLICK, 0, 0);
        return;
    }
    // What the click on a push button ends in. BM_CLICK is that only as long as nothing takes the focus or the mouse
    // from the button between pressing and letting go: then the click is lost, and nobody is told. Where there is no
    // such button, this is what the dialog manager makes of a key, as Escape.
    PostMessageW(control ? GetParent(control) : dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(control));
}

void HastyUser::type(HWND dialog, int control, const wchar_t* text)
{
    SetWindowTextW(controlOf(dialog, control), text);
}

void HastyUser::dismiss(HWND dialog)
{
    if (panelOf(dialog) != dialog)
    {
        PostMessageW(dialog, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        return;
    }
    // A message box has only the buttons that it was asked for, and each of them closes it.
    const int button = GetDlgItem(dialog, IDCANCEL) || !GetDlgItem(dialog, IDOK) ? IDCANCEL : IDOK;
    click(dialog, button);
}

LRESULT CALLBACK HastyUser::hook(int code, WPARAM wparam, LPARAM lparam)
{
    const auto window = reinterpret_cast<HWND>(wparam);
    if (s_user && code == HCBT_CREATEWND)
    {
        s_user->created(window, *reinterpret_cast<const CBT_CREATEWNDW*>(lparam)->lpcs);
    }
    else if (s_user && code == HCBT_DESTROYWND)
    {
        s_user->destroyed(window);
    }
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

LRESULT CALLBACK HastyUser::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam)
{
    if (message == lookAround && s_user)
    {
        s_user->look();
        return 0;
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

void HastyUser::created(HWND window, const CREATESTRUCTW& record)
{
    // The pages of a wizard are dialogs, too, and part of it.
    if ((record.style & WS_CHILD) || Acceptance::windowClass(window) != dialogClass)
    {
        return;
    }
    m_open.push_back({window, 0});
    ++m_seen;
    if (!m_looks)
    {
        m_looks = PostMessageW(m_window, lookAround, 0, 0) != FALSE;
    }
}

void HastyUser::destroyed(HWND window)
{
    std::erase_if(m_open, [window](const Open& open) { return open.window == window; });
}

void HastyUser::look()
{
    m_looks = false;
    if (m_open.empty())
    {
        return;
    }
    Open& front = m_open.back();
    m_use(front.window, front.visits++);
    // Behind what was posted just now, so that it has happened by then. A message loop that has messages left does not
    // get to drawing its dialog.
    m_looks = PostMessageW(m_window, lookAround, 0, 0) != FALSE;
}

} // namespace Hostile
