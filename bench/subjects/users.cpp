#include "Fixtures.h"
#include "ListBench.h"
#include "applicationFixture.h"
#include "floorLists.h"
#include "subjects/subjects.h"

#include "tmgmt/resources/ids.h"

#include <brimlow/tessaro/ServerTemplates.h>
#include <brimlow/tessaro/UserCollection.h>

#include <algorithm>

namespace Bench
{
namespace
{

// The user in the row in the middle of the list, above whose rows that of the guest is.
Tessaro::User middleUser(const Tessaro::UserCollection& users)
{
    return users.getAt((users.getCount() + 1) / 2 - 1);
}

void deleteMiddleUser()
{
    Tessaro::UserCollection users;
    const Tessaro::User user = middleUser(users);
    users.deleteUser(user);
    Tessaro::ServerTemplates applications;
    for (int index = 0; index < applications.getCount(); ++index)
    {
        Tessaro::ServerApplication& application = applications.getAt(index);
        const auto& names = application.getUsers();
        if (std::find(names.begin(), names.end(), user.getUsername()) != names.end())
        {
            application.deleteUser(user.getUsername());
            applications.updateApplication(application);
        }
    }
}

} // namespace

// So many users, and one application.
void users(std::size_t size, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    makeModelApplication();
    Fixtures::make("users", size);
    Fixtures::make("keep", 0);
    ListBench bench("Users", userList(), {L"Users"}, size + 1, size, patience, [] { Fixtures::make("kept", 0); });
    bench.show();
    bench.leave();
    bench.readTexts();

    const Entry added{
        IDD_ADD_USER,
        {{IDC_USERNAME, L"bench"}, {IDC_USER_PASSWORD, L"secret"}, {IDC_NEW_USER_CONFIRMATION, L"secret"}}};
    bench.change({.what = "add one",
                  .command = [](List& list) { list.runCommand(L"&Add User..."); },
                  .least =
                      [&]
                  {
                      Tessaro::User user;
                      user.setUsername(added.texts.at(IDC_USERNAME));
                      user.setPasswordEncoded(added.texts.at(IDC_USER_PASSWORD));
                      Tessaro::UserCollection().addNewUser(user);
                  },
                  .rows = size + 2,
                  .entry = added});
    bench.change({.what = "edit one",
                  .command = [](List& list) { list.open(list.middle()); },
                  .least =
                      []
                  {
                      Tessaro::UserCollection users;
                      users.updateUser(middleUser(users));
                  },
                  .rows = size + 1,
                  .entry = Entry{IDD_EDIT_USER}});
    bench.change({.what = "delete one", .command = &List::deleteSelected, .least = deleteMiddleUser, .rows = size});
}

// One user, whom all of so many applications list.
void usersOfApplications(std::size_t size, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    makeModelApplication();
    Fixtures::make("applications", size);
    Fixtures::make("keep", 0);
    ListBench bench("Users", userList(), {L"Users"}, 2, size, patience, [] { Fixtures::make("kept", 0); });
    bench.change({.what = "delete one whom all applications list (size: applications)",
                  .command = &List::deleteSelected,
                  .least = deleteMiddleUser,
                  .rows = 1});
}

} // namespace Bench
