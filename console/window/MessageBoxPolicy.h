#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace Console
{

// While it lives, every message box of this thread is told about and answered with its default button, so that a run
// that nobody watches does not stop at it. Other dialogs are left alone. One at a time a thread.
class MessageBoxPolicy
{
  public:
    using Report = std::function<void(const std::wstring& caption, const std::wstring& text)>;

    explicit MessageBoxPolicy(Report report);
    MessageBoxPolicy(const MessageBoxPolicy&) = delete;
    MessageBoxPolicy& operator=(const MessageBoxPolicy&) = delete;
    ~MessageBoxPolicy();

  private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam) noexcept;
    static void CALLBACK shown(HWND window, UINT message, UINT_PTR timer, DWORD time) noexcept;
    void answer(HWND box);

    Report m_report;
    HHOOK m_hook;
    HWND m_last = nullptr; // activated; a window is activated again when one over it closes
};

} // namespace Console
