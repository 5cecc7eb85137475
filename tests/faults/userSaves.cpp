#include "Save.h"
#include "soundness.h"

#include "TessaroStore.h"
#include "brimlow/tessaro/UserCollection.h"

#include <sstream>

namespace UserSaves
{
namespace
{

using namespace Tessaro;

// Without a password: that takes its time deliberately, and is one text more in the same row.
void add(const wchar_t* name)
{
    User user;
    user.setUsername(name);
    UserCollection().addNewUser(user);
}

void addTwo()
{
    add(L"alice");
    add(L"bertha");
}

void addNew()
{
    add(L"newcomer");
}

void addNext()
{
    add(L"next");
}

void changeFirst()
{
    UserCollection users;
    User first = users.getAt(0);
    first.setUsername(L"changed");
    first.setEnable(true);
    users.updateUser(first);
}

void removeFirst()
{
    UserCollection users;
    users.deleteUser(users.getAt(0));
}

std::string look()
{
    TessaroStore store;
    const TessaroStore::Pointer content = store.get(TessaroStore::machinePlace());
    std::ostringstream all;
    all << (content->guestEnabled ? "guest, " : "no guest, ");
    for (const User& user : content->users)
    {
        all << user.getUsername().toUtf8() << (user.isEnabled() ? " on, " : " off, ");
    }
    requireSound(TessaroStore::machinePlace().database);
    return all.str();
}

} // namespace
} // namespace UserSaves

std::vector<Save> userSaves()
{
    using namespace UserSaves;
    return {
        {"user, the first one", [] {}, addNew, addNext, look},
        {"user, added", addTwo, addNew, addNext, look},
        {"user, changed", addTwo, changeFirst, addNext, look},
        {"user, deleted", addTwo, removeFirst, addNext, look},
        {"guest account, switched on", addTwo, [] { UserCollection().setGuestEnabled(true); }, addNext, look},
    };
}
