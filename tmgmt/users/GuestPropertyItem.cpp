#include "tmgmt/users/GuestPropertyItem.h"

#include "brimlow/tessaro/UserCollection.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/users/EditUserDlg.h"

namespace TMgmt
{

HRESULT GuestPropertyItem::edit(Console& console)
{
    EditUserDlg dialog(isEnabled());
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    // Kept as is: the row of the guest shows what was chosen even when it cannot be stored.
    setAccount(name, dialog.guestEnabled);
    if (!accepted([&] { Tessaro::UserCollection().setGuestEnabled(isEnabled()); }))
    {
        return S_OK;
    }
    console.updateAllViews(*this, CCT_RESULT);
    refreshUsers(console);
    return S_OK;
}

} // namespace TMgmt
