#include "tmgmt/users/UsersCollectionItem.h"

#include "brimlow/tessaro/UserCollection.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/users/AddUserDlg.h"
#include "tmgmt/users/GuestPropertyItem.h"
#include "tmgmt/users/UserPropertyItem.h"

namespace TMgmt
{

UsersCollectionItem::UsersCollectionItem()
    : Collection(ScopeNode{.displayName = L"Users", .image = 19, .childCount = 0})
{
}

HRESULT UsersCollectionItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_ADD_USER ? add(console) : Collection::Command(command, console, type);
}

HRESULT UsersCollectionItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (!selecting)
    {
        return S_OK;
    }
    console.switchSortingOff();
    console.insertColumn(0, L"Username", 200);
    console.insertColumn(1, L"Enabled", 100);
    console.refreshResultList(*this);
    return S_OK;
}

UsersCollectionItem::Rows UsersCollectionItem::readRows()
{
    Rows rows;
    accepted(
        [&]
        {
            const Tessaro::UserCollection users;
            rows.reserve(static_cast<std::size_t>(users.getCount()) + 1);
            rows.emplace_back(new GuestPropertyItem(*this, users.isGuestEnabled()));
            for (int index = 0; index < users.getCount(); ++index)
            {
                rows.emplace_back(new UserPropertyItem(*this, users.getAt(index)));
            }
        });
    return rows;
}

HRESULT UsersCollectionItem::add(Console& console)
{
    AddUserDlg dialog;
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    if (!accepted([&] { Tessaro::UserCollection().addNewUser(dialog.user); }))
    {
        return S_OK;
    }
    console.refreshResultList(*this);
    return S_OK;
}

} // namespace TMgmt
