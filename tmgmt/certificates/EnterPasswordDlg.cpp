#include "tmgmt/certificates/EnterPasswordDlg.h"

#include "tmgmt/resources/ids.h"

namespace TMgmt
{

EnterPasswordDlg::EnterPasswordDlg() noexcept : Dialog(IDD_ENTER_PASSWORD) {}

void EnterPasswordDlg::onOk()
{
    password.emplace(text(IDC_PASSWORD));
    if (password->get() != SecretText(text(IDC_PASSWORD_AGAIN)).get())
    {
        complain(L"Passwords don't match.", MB_ICONERROR);
        return;
    }
    end(IDOK);
}

} // namespace TMgmt
