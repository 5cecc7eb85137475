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
    if (code == HCBT_ACTIVATE && current != nullptr)
    {
        try
        {
            current->answer(reinterpret_cast<HWND>(wParam));
        }
        catch (...)
        {
            OutputDebugStringW(L"A message box could not be reported.\n");
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void MessageBoxPolicy::answer(HWND box)
{
    // A box is activated again when another window of the thread goes.
    if (box == m_answered || !isMessageBox(box))
    {
        return;
    }
    m_answered = box;
    const LRESULT button = SendMessageW(box, DM_GETDEFID, 0, 0);
    const int answer = HIWORD(button) == DC_HASDEFID ? LOWORD(button) : IDOK;
    // Posted, so that it comes after the box's own start, even if the report fails.
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(answer), 0);
    m_report(textOf(box), textOf(GetDlgItem(box, textControl)));
}

} // namespace Console
