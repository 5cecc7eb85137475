#include "tmgmt/users/accessLists.h"

#include <algorithm>

#include "brimlow/tessaro/ServerTemplates.h"

namespace TMgmt
{

void renameInAccessLists(const Core::String& from, const Core::String& to)
{
    Tessaro::ServerTemplates templates;
    for (int index = 0; index < templates.getCount(); ++index)
    {
        Tessaro::ServerApplication& application = templates.getAt(index);
        std::vector<Core::String> users = application.getUsers();
        if (const auto found = std::ranges::find(users, from); found != users.end())
        {
            *found = to;
            application.setUsers(users);
            templates.updateApplication(application);
        }
    }
}

void removeFromAccessLists(const Core::String& username)
{
    Tessaro::ServerTemplates templates;
    for (int index = 0; index < templates.getCount(); ++index)
    {
        Tessaro::ServerApplication& application = templates.getAt(index);
        const std::vector<Core::String>& users = application.getUsers();
        if (std::ranges::find(users, username) != users.end())
        {
            application.deleteUser(username);
            templates.updateApplication(application);
        }
    }
}

} // namespace TMgmt
