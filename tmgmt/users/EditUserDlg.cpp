#include "tmgmt/users/EditUserDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/SecretText.h"
#include "tmgmt/ui/WaitCursor.h"
#include "tmgmt/users/accessLists.h"
#include "tmgmt/users/rules/UserRules.h"

namespace TMgmt
{

EditUserDlg::EditUserDlg(Tessaro::User user_) : UserDlg(IDD_EDIT_USER, std::move(user_)), m_guestMode(false) {}

EditUserDlg::EditUserDlg(bool guestEnabled_)
    : UserDlg(IDD_EDIT_USER, {}), guestEnabled(guestEnabled_), m_guestMode(true)
{
}

bool EditUserDlg::onInit()
{
    if (m_guestMode)
    {
        setText(IDC_USERNAME, L"Guest");
        SendMessageW(item(IDC_USERNAME), EM_SETREADONLY, TRUE, 0);
        EnableWindow(item(IDC_USER_PASSWORD), FALSE);
        EnableWindow(item(IDC_EDITED_USER_CONFIRMATION), FALSE);
        setChecked(IDC_USER_ENABLED, guestEnabled);
    }
    else
    {
        setText(IDC_USERNAME, user.getUsername().str());
        setChecked(IDC_USER_ENABLED, user.isEnabled());
    }
    return true;
}

const wchar_t* EditUserDlg::store()
{
    const bool enabled = isChecked(IDC_USER_ENABLED);
    if (m_guestMode)
    {
        guestEnabled = enabled;
        return nullptr;
    }
    const Core::String username = text(IDC_USERNAME);
    user.setEnable(enabled);
    if (isTaken(username, isEditedUsernameTaken))
    {
        return editedUsernameTaken;
    }
    if (const wchar_t* const fault = faultOfEditedUsername(username))
    {
        return fault;
    }
    const SecretText password(text(IDC_USER_PASSWORD));
    const SecretText confirmation(text(IDC_EDITED_USER_CONFIRMATION));
    if (const wchar_t* const fault = faultOfChangedPassword(password.get(), confirmation.get()))
    {
        return fault;
    }
    const WaitCursor wait;
    // In a copy, which is taken when nothing can be refused any more: until then the dialog stays open, and the account
    // has its former name and password.
    Tessaro::User changed = user;
    changed.setUsername(username);
    if (!password.get().empty())
    {
        changed.setPasswordEncoded(password.get());
    }
    renameInAccessLists(user.getUsername(), username);
    user = changed;
    return nullptr;
}

} // namespace TMgmt
