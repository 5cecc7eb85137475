#include "MessageBoxPolicy.h"

#include "Failure.h"

#include <array>
#include <string_view>
#include <utility>

namespace Console
{

namespace
{

thread_local MessageBoxPolicy* current = nullptr;

// The text of a message box, in every version of Windows.
constexpr int textControl = 0xFFFF;

std::wstring textOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

std::wstring classOf(HWND window)
{
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

// A message box is a dialog like others; what tells it apart is that nothing but texts, an icon and buttons with the
// answers' numbers is in it, and that its text has no number of its own.
bool isMessageBox(HWND window)
{
    if (classOf(window) != L"#32770" || GetDlgItem(window, textControl) == nullptr)
    {
        return false;
    }
    bool answers = false;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        const std::wstring type = classOf(child);
        const int number = GetDlgCtrlID(child);
        const bool answer = type == L"Button" && number >= IDOK && number <= IDCONTINUE;
        if (!answer && type != L"Static")
        {
            return false;
        }
        answers = answers || answer;
    }
    return answers;
}

bool isButton(HWND window)
{
    return window != nullptr && classOf(window) == L"Button";
}

// The number of the button that Enter presses: the one with the focus; in a box that could not get the focus the
// one that is drawn as the default.
int defaultAnswer(HWND box)
{
    const HWND focus = GetFocus();
    if (IsChild(box, focus) && isButton(focus))
    {
        return GetDlgCtrlID(focus);
    }
    for (HWND child = GetWindow(box, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        const LONG_PTR style = GetWindowLongPtrW(child, GWL_STYLE);
        if (isButton(child) && (style & WS_VISIBLE) != 0 && (style & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
        {
            return GetDlgCtrlID(child);
        }
    }
    return IDOK;
}

} // namespace

MessageBoxPolicy::MessageBoxPolicy(Report report)
    : m_report(std::move(report)), m_hook(SetWindowsHookExW(WH_CBT, hook, nullptr, GetCurrentThreadId()))
{
    if (m_hook == nullptr)
    {
        throwLastError("SetWindowsHookEx");
    }
    current = this;
}

MessageBoxPolicy::~MessageBoxPolicy()
{
    UnhookWindowsHookEx(m_hook);
    current = nullptr;
}

LRESULT CALLBACK MessageBoxPolicy::hook(int code, WPARAM wParam, LPARAM lParam) noexcept
{
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && current != nullptr && window != current->m_last)
    {
        // The box is not finished while it is activated: not even its default button is known. A timer's message comes
        // when everything else is done.
        current->m_last = window;
        SetTimer(window, reinterpret_cast<UINT_PTR>(current), 0, shown);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void CALLBACK MessageBoxPolicy::shown(HWND window, UINT, UINT_PTR timer, DWORD) noexcept
{
    KillTimer(window, timer);
    try
    {
        if (current != nullptr && isMessageBox(window))
        {
            current->answer(window);
        }
    }
    catch (...)
    {
        OutputDebugStringW(L"A message box could not be reported.\n");
    }
}

void MessageBoxPolicy::answer(HWND box)
{
    // Posted, and before the report: the box closes even if that fails.
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(defaultAnswer(box)), 0);
    m_report(textOf(box), textOf(GetDlgItem(box, textControl)));
}

} // namespace Console
