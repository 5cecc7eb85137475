#include "tmgmt/ui/Dialog.h"

#include <system_error>

#include "tmgmt/ui/messageBox.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{

INT_PTR Dialog::show(HWND owner)
{
    const platform::VisualStyles::Scope scope(moduleStyles());
    const INT_PTR result = DialogBoxParamW(moduleInstance(), MAKEINTRESOURCEW(m_resource), owner, procedure,
                                           reinterpret_cast<LPARAM>(this));
    const DWORD error = GetLastError();
    closed();
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

void Dialog::complain(const wchar_t* message, UINT icon) noexcept
{
    showMessage(window(), message, validationErrorCaption, MB_OK | icon);
}

INT_PTR CALLBACK Dialog::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept
{
    return dispatch(window, message, wparam, lparam,
                    message == WM_INITDIALOG ? reinterpret_cast<Dialog*>(lparam) : nullptr);
}

INT_PTR Dialog::handle(UINT message, WPARAM wparam, LPARAM)
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
