#include "DialogAnswer.h"

#include "kit/windows.h"

namespace Bench
{

DialogAnswer* DialogAnswer::s_current = nullptr;

DialogAnswer::DialogAnswer(std::map<int, std::wstring> texts) : m_texts(std::move(texts))
{
    s_current = this;
    m_hook = SetWindowsHookExW(WH_CBT, hook, nullptr, GetCurrentThreadId());
}

DialogAnswer::~DialogAnswer()
{
    UnhookWindowsHookEx(m_hook);
    s_current = nullptr;
}

LRESULT CALLBACK DialogAnswer::hook(int code, WPARAM wparam, LPARAM lparam)
{
    const HWND window = reinterpret_cast<HWND>(wparam);
    if (code == HCBT_ACTIVATE && Acceptance::windowClass(window) == L"#32770")
    {
        s_current->answer(window);
    }
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

// A dialog is activated once it is set up.
void DialogAnswer::answer(HWND dialog)
{
    for (const auto& [control, text] : m_texts)
    {
        SetDlgItemTextW(dialog, control, text.c_str());
    }
    PostMessageW(dialog, WM_COMMAND, m_answered ? IDCANCEL : IDOK, 0);
    m_answered = true;
}

} // namespace Bench
