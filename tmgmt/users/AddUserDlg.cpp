#include "tmgmt/users/AddUserDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/SecretText.h"
#include "tmgmt/ui/WaitCursor.h"
#include "tmgmt/users/rules/UserRules.h"

namespace TMgmt
{

AddUserDlg::AddUserDlg() : UserDlg(IDD_ADD_USER, {})
{
    user.setEnable(true);
}

bool AddUserDlg::onInit()
{
    setText(IDC_USERNAME, user.getUsername().str());
    setText(IDC_USER_PASSWORD, user.getPassword().str());
    setChecked(IDC_USER_ENABLED, user.isEnabled());
    return true;
}

const wchar_t* AddUserDlg::store()
{
    const Core::String username = text(IDC_USERNAME);
    user.setEnable(isChecked(IDC_USER_ENABLED));
    if (isTaken(username, isNewUsernameTaken) || isGuestName(username))
    {
        return newUsernameTaken;
    }
    if (const wchar_t* const fault = faultOfNewUsername(username))
    {
        return fault;
    }
    const SecretText password(text(IDC_USER_PASSWORD));
    const SecretText confirmation(text(IDC_NEW_USER_CONFIRMATION));
    if (const wchar_t* const fault = faultOfNewPassword(password.get(), confirmation.get()))
    {
        return fault;
    }
    const WaitCursor wait;
    user.setUsername(username);
    user.setPasswordEncoded(password.get());
    return nullptr;
}

} // namespace TMgmt
