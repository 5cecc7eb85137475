#include "tmgmt/users/UserPropertyItem.h"

#include "brimlow/tessaro/UserCollection.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/users/EditUserDlg.h"
#include "tmgmt/users/accessLists.h"

namespace TMgmt
{

UserPropertyItem::UserPropertyItem(const CSnapInItem& parent, const Tessaro::User& user)
    : AccountItem(parent, L"User", user.getUsername(), user.isEnabled()), m_user(user)
{
}

HRESULT UserPropertyItem::OnSelect(bool, bool isSelected, Console& console)
{
    return enableVerb(MMC_VERB_DELETE, isSelected, console);
}

HRESULT UserPropertyItem::OnDelete(Console& console)
{
    bool deleted = false;
    accepted(
        [&]
        {
            Tessaro::UserCollection().deleteUser(m_user);
            deleted = true;
            removeFromAccessLists(m_user.getUsername());
        });
    // Where access lists cannot be rewritten the account is gone all the same.
    if (deleted)
    {
        refreshUsers(console);
    }
    return S_OK;
}

HRESULT UserPropertyItem::edit(Console& console)
{
    EditUserDlg dialog(m_user);
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    // Kept as is: the row of a user shows what was entered even when it cannot be stored.
    m_user = dialog.user;
    m_edited = true;
    setAccount(m_user.getUsername(), m_user.isEnabled());
    if (!accepted([&] { Tessaro::UserCollection().updateUser(m_user); }))
    {
        return S_OK;
    }
    console.updateAllViews(*this, CCT_RESULT);
    refreshUsers(console);
    return S_OK;
}

} // namespace TMgmt
