#include "tmgmt/ui/DialogWindow.h"

#include <utility>

namespace TMgmt
{

INT_PTR DialogWindow::dispatch(HWND window, UINT message, WPARAM wparam, LPARAM lparam, DialogWindow* created) noexcept
{
    if (created)
    {
        SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(created));
        created->m_window = window;
    }
    auto* dialog = reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!dialog)
    {
        return FALSE;
    }
    try
    {
        return dialog->handle(message, wparam, lparam);
    }
    catch (...)
    {
        dialog->m_thrown = std::current_exception();
        dialog->abandon();
        return TRUE;
    }
}

void DialogWindow::closed()
{
    m_window = nullptr;
    if (const std::exception_ptr thrown = std::exchange(m_thrown, nullptr))
    {
        std::rethrow_exception(thrown);
    }
}

std::wstring DialogWindow::text(int control) const
{
    const HWND field = item(control);
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(field)), L'\0');
    const int length = GetWindowTextW(field, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void DialogWindow::setFocus(int control) noexcept
{
    const HWND target = item(control);
    SetFocus(target);
    if (SendMessageW(target, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL)
    {
        SendMessageW(target, EM_SETSEL, 0, -1);
    }
}

} // namespace TMgmt
