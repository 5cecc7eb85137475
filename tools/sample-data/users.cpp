#include "sampleData.h"

#include "brimlow/tessaro/UserCollection.h"

namespace SampleData
{
namespace
{

void add(Tessaro::UserCollection& users, const wchar_t* name, bool enabled)
{
    Tessaro::User user;
    user.setUsername(name);
    user.setPasswordEncoded(L"change me, please");
    user.setEnable(enabled);
    users.addNewUser(user);
}

} // namespace

void addUsers()
{
    Tessaro::UserCollection users;
    if (users.getCount() > 0)
    {
        return;
    }
    add(users, L"jean.dupont", true);
    add(users, L"m_keller", true);
    add(users, L"print-room", false);
    users.setGuestEnabled(true);
}

} // namespace SampleData
