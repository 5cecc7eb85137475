#include "kit/Robot.h"

#include "kit/windows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <utility>

namespace Acceptance
{
namespace
{

constexpr UINT useWindow = WM_APP;
constexpr wchar_t className[] = L"AcceptanceRobot";
constexpr wchar_t dialogClass[] = L"#32770";

// A message box has no name for its icon; the system's icons are shared, so each is always the same handle.
UINT iconOf(HWND control)
{
    const auto icon = reinterpret_cast<HICON>(SendMessageW(control, STM_GETICON, 0, 0));
    const std::array<std::pair<LPCWSTR, UINT>, 4> icons{{{IDI_ERROR, MB_ICONERROR},
                                                         {IDI_EXCLAMATION, MB_ICONEXCLAMATION},
                                                         {IDI_QUESTION, MB_ICONQUESTION},
                                                         {IDI_INFORMATION, MB_ICONINFORMATION}}};
    for (const auto& [name, style] : icons)
    {
        if (icon == LoadIconW(nullptr, name))
        {
            return style;
        }
    }
    return 0;
}

const wchar_t* nameOf(Owner owner)
{
    switch (owner)
    {
    case Owner::none:
        return L"nobody";
    case Owner::frame:
        return L"the frame";
    case Owner::dialog:
        return L"the dialog";
    }
    return L"?";
}

std::wstring describe(const MessageBoxSeen& box)
{
    std::wostringstream out;
    out << L"message box \"" << box.text << L"\" titled \"" << box.caption << L"\", icon 0x" << std::hex << box.icon
        << std::dec << L", owned by " << nameOf(box.owner) << L", buttons";
    for (const int button : box.buttons)
    {
        out << L' ' << button;
    }
    return out.str();
}

bool isMessageBox(HWND window)
{
    const auto children = childWindows(window);
    return std::ranges::all_of(children, [](HWND child)
                               { return windowClass(child) == L"Static" || windowClass(child) == L"Button"; });
}

} // namespace

Robot* Robot::s_robot = nullptr;

Robot::Robot(HWND frame) : m_frame(frame)
{
    WNDCLASSW robotClass{};
    robotClass.lpfnWndProc = procedure;
    robotClass.hInstance = GetModuleHandleW(nullptr);
    robotClass.lpszClassName = className;
    RegisterClassW(&robotClass);
    m_window = CreateWindowW(className, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, robotClass.hInstance, nullptr);
    s_robot = this;
    m_hook = SetWindowsHookExW(WH_CBT, hook, nullptr, GetCurrentThreadId());
}

Robot::~Robot()
{
    UnhookWindowsHookEx(m_hook);
    s_robot = nullptr;
    DestroyWindow(m_window);
}

void Robot::dialog(const std::wstring& caption, Action action, Owner owner, std::source_location where)
{
    const auto use = [this, caption, action = std::move(action), owner](ModalWindow& window) -> std::wstring
    {
        if (window.caption() != caption)
        {
            return L"another caption";
        }
        if (m_first && ownerOf(window.handle()) != owner)
        {
            return std::wstring(L"owned by ") + nameOf(ownerOf(window.handle())) + L", not by " + nameOf(owner);
        }
        action(window);
        return window.acted() ? L"" : L"the script's action does nothing that leads on";
    };
    m_steps.push_back({L"dialog \"" + caption + L"\"", where, use});
}

void Robot::message(const MessageBoxSeen& expected, std::source_location where)
{
    const auto use = [this, expected](ModalWindow& window) -> std::wstring
    {
        if (!isMessageBox(window.handle()))
        {
            return L"not a message box";
        }
        const std::wstring seen = describe(read(window));
        if (seen != describe(expected))
        {
            return L"it is the " + seen;
        }
        window.press(expected.answer);
        return {};
    };
    m_steps.push_back({describe(expected), where, use});
}

void Robot::messageThat(std::function<void(const MessageBoxSeen&)> check, std::source_location where)
{
    const auto use = [this, check = std::move(check)](ModalWindow& window) -> std::wstring
    {
        if (!isMessageBox(window.handle()))
        {
            return L"not a message box";
        }
        const MessageBoxSeen seen = read(window);
        check(seen);
        window.press(seen.buttons.front());
        return {};
    };
    m_steps.push_back({L"a message box", where, use});
}

void Robot::finish()
{
    for (const Step& step : m_steps)
    {
        ADD_FAILURE_AT(step.where.file_name(), static_cast<int>(step.where.line()))
            << "did not come: " << narrow(step.what);
    }
    m_steps.clear();
}

LRESULT CALLBACK Robot::hook(int code, WPARAM wparam, LPARAM lparam)
{
    const HWND window = reinterpret_cast<HWND>(wparam);
    if (s_robot && code == HCBT_ACTIVATE && windowClass(window) == dialogClass)
    {
        s_robot->activated(window);
    }
    else if (s_robot && code == HCBT_DESTROYWND)
    {
        s_robot->destroyed(window);
    }
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

LRESULT CALLBACK Robot::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam)
{
    if (message == useWindow && s_robot)
    {
        s_robot->use(reinterpret_cast<HWND>(wparam));
        return 0;
    }
    if (message == WM_TIMER && s_robot)
    {
        KillTimer(window, wparam);
        s_robot->use(reinterpret_cast<HWND>(wparam));
        return 0;
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

// The window is before the user now, for the first time or again because what covered it is closing. The dialog is
// used from its own message loop: by then it is set up completely, and so is everything that its handler still did
// after a message box.
void Robot::activated(HWND window)
{
    const auto known = std::ranges::find(m_open, window);
    if (known != m_open.end() && known + 1 == m_open.end())
    {
        return;
    }
    m_first = known == m_open.end();
    if (m_first)
    {
        m_open.push_back(window);
    }
    else
    {
        m_open.erase(known + 1, m_open.end());
    }
    PostMessageW(m_window, useWindow, reinterpret_cast<WPARAM>(window), 0);
}

void Robot::destroyed(HWND window)
{
    const auto gone = std::ranges::find(m_open, window);
    if (gone == m_open.end())
    {
        return;
    }
    // What a window covered mostly comes to the front before that window is gone. Where it comes later, the gap says
    // that it was covered.
    const bool isInFront = gone + 1 == m_open.end();
    if (isInFront && gone != m_open.begin())
    {
        *gone = nullptr;
    }
    else
    {
        m_open.erase(gone);
    }
}

void Robot::use(HWND window)
{
    // It closed by itself, or something else came before it meanwhile.
    if (m_open.empty() || m_open.back() != window)
    {
        return;
    }
    // A dialog of the system's own is shown by its message loop once there are no messages left. Timers come after
    // that.
    if (!IsWindowVisible(window))
    {
        SetTimer(m_window, reinterpret_cast<UINT_PTR>(window), USER_TIMER_MINIMUM, nullptr);
        return;
    }
    if (m_steps.empty())
    {
        ADD_FAILURE() << "a window that nobody expects: " << narrow(describeWindow(window));
        getRidOf(window);
        return;
    }
    const Step step = std::move(m_steps.front());
    m_steps.pop_front();
    ModalWindow modal(window);
    const std::wstring wrong = step.use(modal);
    if (!wrong.empty())
    {
        ADD_FAILURE_AT(step.where.file_name(), static_cast<int>(step.where.line()))
            << "expected: " << narrow(step.what) << "\n"
            << narrow(wrong) << "\nin front: " << narrow(describeWindow(window));
        getRidOf(window);
    }
}

// Also what follows is not what the script was written for.
void Robot::getRidOf(HWND window)
{
    finish();
    const auto buttons = ModalWindow(window).buttons();
    const bool hasCancel = std::ranges::find(buttons, static_cast<int>(IDCANCEL)) != buttons.end();
    const int button = hasCancel || buttons.empty() ? static_cast<int>(IDCANCEL) : buttons.back();
    PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
}

Owner Robot::ownerOf(HWND window) const
{
    const HWND owner = GetWindow(window, GW_OWNER);
    if (!owner || owner == GetDesktopWindow())
    {
        return Owner::none;
    }
    return owner == m_frame ? Owner::frame : Owner::dialog;
}

MessageBoxSeen Robot::read(ModalWindow& window) const
{
    MessageBoxSeen seen;
    seen.caption = window.caption();
    seen.owner = ownerOf(window.handle());
    seen.buttons = window.buttons();
    for (const HWND child : childWindows(window.handle()))
    {
        if (windowClass(child) != L"Static")
        {
            continue;
        }
        if ((GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
        {
            seen.icon = iconOf(child);
        }
        else
        {
            seen.text = windowText(child);
        }
    }
    return seen;
}

} // namespace Acceptance
