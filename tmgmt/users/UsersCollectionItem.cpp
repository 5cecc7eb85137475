#include "tmgmt/users/UsersCollectionItem.h"

#include "brimlow/tessaro/UserCollection.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/users/AddUserDlg.h"
#include "tmgmt/users/GuestPropertyItem.h"
#include "tmgmt/users/UserPropertyItem.h"

namespace TMgmt
{

UsersCollectionItem::UsersCollectionItem()
    : StoredCollection(ScopeNode{.displayName = L"Users", .image = 19, .childCount = 0})
{
}

HRESULT UsersCollectionItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_ADD_USER ? add(console) : StoredCollection::Command(command, console, type);
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

UsersCollectionItem::Listing UsersCollectionItem::read(Listing former)
{
    Listing now;
    accepted(
        [&]
        {
            const Tessaro::UserCollection users;
            if (former.state == users.state())
            {
                now = std::move(former);
                return;
            }
            now.rows.reserve(static_cast<std::size_t>(users.getCount()) + 1);
            now.rows.emplace_back(new GuestPropertyItem(*this, users.isGuestEnabled()));
            // Whoever is as he was keeps his row. Rows and users are both in the order of their numbers.
            std::size_t place = 1;
            const auto formerRow = [&]() -> const UserPropertyItem*
            { return place < former.rows.size() ? static_cast<UserPropertyItem*>(former.rows[place].get()) : nullptr; };
            for (int index = 0; index < users.getCount(); ++index)
            {
                const Tessaro::User& user = users.getAt(index);
                while (formerRow() && formerRow()->userId() < user.getId())
                {
                    ++place;
                }
                const bool stays = formerRow() && formerRow()->isOf(user);
                now.rows.emplace_back(stays ? former.rows[place] : new UserPropertyItem(*this, user));
            }
            now.state = users.state();
        });
    return now;
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
