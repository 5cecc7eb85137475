#include "Fixtures.h"
#include "ListBench.h"
#include "applicationFixture.h"
#include "subjects/subjects.h"

#include <brimlow/tessaro/ServerTemplates.h>
#include <brimlow/tessaro/UserCollection.h>

#include <algorithm>

namespace Bench
{
namespace
{

constexpr int nameEdit = 232;
constexpr int passwordEdit = 233;
constexpr int confirmationEdit = 234;

std::vector<std::wstring> userCells()
{
    const Tessaro::UserCollection users;
    std::vector<std::wstring> cells{L"Guest", users.isGuestEnabled() ? L"Yes" : L"No"};
    cells.reserve(2 * static_cast<std::size_t>(users.getCount() + 1));
    for (int index = 0; index < users.getCount(); ++index)
    {
        const Tessaro::User& user = users.getAt(index);
        cells.push_back(user.getUsername().str());
        cells.emplace_back(user.isEnabled() ? L"Yes" : L"No");
    }
    return cells;
}

FloorNode userList()
{
    return {.name = L"Users", .columns = {L"Username", L"Enabled"}, .read = userCells};
}

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

const auto deleteSelected = [](List& list) { list.deleteSelected(); };

} // namespace

// So many users, and no application.
void users(std::size_t size, std::size_t repetitions)
{
    makeApplications(0, size);
    ListBench bench("Users", userList(), {L"Users"}, size + 1, size, repetitions,
                    [size] { Fixtures::make("users", size); });
    bench.show();
    bench.leave();
    bench.readTexts();

    const std::map<int, std::wstring> added{
        {nameEdit, L"bench"}, {passwordEdit, L"secret"}, {confirmationEdit, L"secret"}};
    bench.change({.what = "add one",
                  .command = [](List& list) { list.runCommand(L"&Add User..."); },
                  .least =
                      [&]
                  {
                      Tessaro::User user;
                      user.setUsername(added.at(nameEdit));
                      user.setPasswordEncoded(added.at(passwordEdit));
                      Tessaro::UserCollection().addNewUser(user);
                  },
                  .rows = size + 2,
                  .entered = added});
    bench.change({.what = "edit one",
                  .command = [](List& list) { list.open(list.middle()); },
                  .least =
                      []
                  {
                      Tessaro::UserCollection users;
                      users.updateUser(middleUser(users));
                  },
                  .rows = size + 1,
                  .entered = std::map<int, std::wstring>()});
    bench.change({.what = "delete one", .command = deleteSelected, .least = deleteMiddleUser, .rows = size});
}

// A few users whom all of so many applications list.
void usersOfApplications(std::size_t size, std::size_t repetitions)
{
    makeApplications(size, usersOfEach);
    ListBench bench("Users: of applications", userList(), {L"Users"}, usersOfEach + 1, size, repetitions,
                    [size]
                    {
                        Fixtures::make("users", usersOfEach);
                        Fixtures::make("applications", size);
                    });
    bench.change(
        {.what = "delete the same of all", .command = deleteSelected, .least = deleteMiddleUser, .rows = usersOfEach});
}

} // namespace Bench
