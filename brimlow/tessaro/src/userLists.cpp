#include "userLists.h"

#include <algorithm>

namespace Tessaro
{

namespace
{

bool contains(const UserList& users, const Core::String& user)
{
    return std::find(users.begin(), users.end(), user) != users.end();
}

} // namespace

UserList mergedUsers(const UserList& stored, const UserList& former, const UserList& changed)
{
    if (stored == former)
    {
        return changed;
    }
    UserList merged = stored;
    std::erase_if(merged, [&](const Core::String& user) { return contains(former, user) && !contains(changed, user); });
    for (const Core::String& user : changed)
    {
        if (!contains(former, user) && !contains(merged, user))
        {
            merged.push_back(user);
        }
    }
    return merged;
}

} // namespace Tessaro
