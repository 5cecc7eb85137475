#include "AboutWindow.h"

#include "Failure.h"
#include "resource.h"

#include <utility>

namespace Console
{

AboutWindow::AboutWindow(Content content) : m_content(std::move(content)) {}

void AboutWindow::show(HWND owner)
{
    DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_ABOUT), owner, procedure,
                    reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK AboutWindow::procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message == WM_INITDIALOG)
    {
        try
        {
            reinterpret_cast<const AboutWindow*>(lParam)->fill(dialog);
        }
        catch (...)
        {
            reportFailure();
        }
        return TRUE;
    }
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL))
    {
        EndDialog(dialog, LOWORD(wParam));
        return TRUE;
    }
    return FALSE;
}

void AboutWindow::fill(HWND dialog) const
{
    SetWindowTextW(dialog, (L"About " + m_content.name).c_str());
    SetDlgItemTextW(dialog, IDC_ABOUT_NAME, m_content.name.c_str());
    SetDlgItemTextW(dialog, IDC_ABOUT_VERSION,
                    m_content.version.empty() ? L"" : (L"Version " + m_content.version).c_str());
    SetDlgItemTextW(dialog, IDC_ABOUT_PROVIDER, m_content.provider.c_str());
    SetDlgItemTextW(dialog, IDC_ABOUT_DESCRIPTION, m_content.description.c_str());
    if (m_content.icon != nullptr)
    {
        SendDlgItemMessageW(dialog, IDC_ABOUT_ICON, STM_SETICON, reinterpret_cast<WPARAM>(m_content.icon), 0);
    }
}

} // namespace Console
