#include "tmgmt/ui/Dialog.h"

#include <system_error>

#include "tmgmt/ui/messageBox.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{

INT_PTR Dialog::show(HWND owner)
{
    const platform::VisualStyles::Scope scope(moduleStyles());
    m_thrown = nullptr;
    const INT_PTR result = DialogBoxParamW(moduleInstance(), MAKEINTRESOURCEW(m_resource), owner, procedure,
                                           reinterpret_cast<LPARAM>(this));
    const DWORD error = GetLastError();
    m_window = nullptr;
    if (m_thrown)
    {
        std::rethrow_exception(m_thrown);
    }
    // DialogBoxParamW answers 0 for an owner that is no window and -1 for every other failure.
    if (result <= 0)
    {
        throw std::system_error(static_cast<int>(error), std::system_category(), "A dialog cannot be shown");
    }
    return result;
}

void Dialog::onCommand(int control, int)
{
    if (control == IDOK)
    {
        onOk();
    }
    else if (control == IDCANCEL)
    {
        end(IDCANCEL);
    }
}

std::wstring Dialog::text(int control) const
{
    const HWND field = item(control);
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(field)), L'\0');
    const int length = GetWindowTextW(field, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void Dialog::setFocus(int control) noexcept
{
    const HWND target = item(control);
    SetFocus(target);
    if (SendMessageW(target, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL)
    {
        SendMessageW(target, EM_SETSEL, 0, -1);
    }
}

void Dialog::complain(const wchar_t* message, UINT icon) noexcept
{
    showMessage(m_window, message, validationErrorCaption, MB_OK | icon);
}

INT_PTR CALLBACK Dialog::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept
{
    if (message == WM_INITDIALOG)
    {
        SetWindowLongPtrW(window, DWLP_USER, lparam);
        reinterpret_cast<Dialog*>(lparam)->m_window = window;
    }
    auto* dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!dialog)
    {
        return FALSE;
    }
    try
    {
        return dialog->handle(message, wparam);
    }
    catch (...)
    {
        dialog->m_thrown = std::current_exception();
        EndDialog(window, IDABORT);
        return TRUE;
    }
}

INT_PTR Dialog::handle(UINT message, WPARAM wparam)
{
    switch (message)
    {
    case WM_INITDIALOG:
        return onInit() ? TRUE : FALSE;
    case WM_COMMAND:
        onCommand(LOWORD(wparam), HIWORD(wparam));
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace TMgmt
