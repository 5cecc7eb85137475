#pragma once

#include <windows.h>

#include <exception>
#include <string>

namespace TMgmt
{

// What a dialog and the page of a wizard have in common: a window made from a dialog resource, its controls by their
// ids, and a procedure from which no exception gets out.
class DialogWindow
{
  public:
    DialogWindow(const DialogWindow&) = delete;
    DialogWindow& operator=(const DialogWindow&) = delete;

  protected:
    DialogWindow() noexcept = default;
    virtual ~DialogWindow() = default;

    // For the derived class's dialog procedure. created is the object that a WM_INITDIALOG brings, null with every
    // other message.
    static INT_PTR dispatch(HWND window, UINT message, WPARAM wparam, LPARAM lparam, DialogWindow* created) noexcept;
    virtual INT_PTR handle(UINT message, WPARAM wparam, LPARAM lparam) = 0;
    // A handler threw: closes what the user has before him.
    virtual void abandon() noexcept = 0;
    // Once the system's loop is over: the window is gone; throws what a handler threw.
    void closed();

    HWND window() const noexcept { return m_window; }
    HWND item(int control) const noexcept { return GetDlgItem(m_window, control); }
    std::wstring text(int control) const;
    void setText(int control, const std::wstring& text) noexcept { SetWindowTextW(item(control), text.c_str()); }
    bool isChecked(int control) const noexcept { return IsDlgButtonChecked(m_window, control) == BST_CHECKED; }
    void setChecked(int control, bool checked) noexcept
    {
        CheckDlgButton(m_window, control, checked ? BST_CHECKED : BST_UNCHECKED);
    }
    // Selects the text of an edit control with it, as the dialog manager does: what is typed replaces it.
    void setFocus(int control) noexcept;

  private:
    HWND m_window = nullptr;
    // What a handler threw: it may not cross the system's dialog loop, so it waits here until that is over.
    std::exception_ptr m_thrown;
};

} // namespace TMgmt
