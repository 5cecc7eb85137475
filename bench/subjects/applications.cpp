#include "Fixtures.h"
#include "ListBench.h"
#include "applicationFixture.h"
#include "subjects/subjects.h"

#include <brimlow/system/FileSystem.h>
#include <brimlow/tessaro/ServerTemplates.h>
#include <brimlow/tessaro/UserCollection.h>

namespace Bench
{
namespace
{

constexpr int templateNameEdit = 284;
const Core::String guest = L"Guest";

// The application that is worked with, in the middle of the others.
Tessaro::ServerApplication& application(Tessaro::ServerTemplates& applications)
{
    return applications.getAt(applications.getCount() / 2);
}

std::vector<std::wstring> templateNames()
{
    Tessaro::ServerTemplates applications;
    Tessaro::ServerApplication& shown = application(applications);
    std::vector<std::wstring> names;
    for (int index = 0; index < shown.getTemplatesCount(); ++index)
    {
        names.push_back(shown.getAt(index).getDisplayName().str());
    }
    return names;
}

std::vector<std::wstring> namesWithAccess()
{
    Tessaro::ServerTemplates applications;
    const Tessaro::UserCollection users;
    std::vector<std::wstring> names;
    for (const Core::String& name : application(applications).getUsers())
    {
        names.push_back(name == guest ? name.str() : users.getUserByName(name).getUsername().str());
    }
    return names;
}

void templates(const std::wstring& name, std::size_t size, std::size_t repetitions)
{
    // A console lists the nodes below a node among its rows: the users and the resource folders.
    constexpr std::size_t rows = 1 + foldersOfEach + templatesOfEach;
    FloorNode node{.name = L"Application",
                   .children = std::vector<FloorNode>(1 + foldersOfEach, FloorNode{.name = L"Folder"}),
                   .columns = {L"Name"},
                   .read = templateNames};
    ListBench bench("Templates of one application", std::move(node), {L"Server Templates", name}, rows, size,
                    repetitions, [size] { Fixtures::make("applications", size); });
    bench.show();
    bench.change({.what = "rename one",
                  .command = [](List& list) { list.open(list.middle()); },
                  .least =
                      []
                  {
                      Tessaro::ServerTemplates applications;
                      Tessaro::ServerApplication& shown = application(applications);
                      const Tessaro::Template renamed = shown.getAt(shown.getTemplatesCount() / 2);
                      shown.renameTemplate(renamed,
                                           Core::IO::FileSystem::combinePath(shown.getApplicationPath(), L"renamed"));
                  },
                  .rows = rows,
                  .entered = std::map<int, std::wstring>{{templateNameEdit, L"renamed"}}});
}

void access(const std::wstring& name, std::size_t size, std::size_t repetitions)
{
    ListBench bench("Users of one application", {.name = L"Users", .columns = {L"Name"}, .read = namesWithAccess},
                    {L"Server Templates", name, L"Users"}, usersOfEach, size, repetitions,
                    [size] { Fixtures::make("applications", size); });
    bench.show();
    bench.change({.what = "grant one",
                  .command = [](List& list) { list.runCommand(L"&Grant Access To..."); },
                  .least =
                      []
                  {
                      Tessaro::ServerTemplates applications;
                      Tessaro::ServerApplication& shown = application(applications);
                      shown.addUser(guest);
                      applications.updateApplication(shown);
                  },
                  .rows = usersOfEach + 1,
                  .entered = std::map<int, std::wstring>()});
}

} // namespace

void applications(std::size_t size, std::size_t repetitions)
{
    makeApplications(size, usersOfEach);
    Tessaro::ServerTemplates all;
    const std::wstring name = application(all).getDisplayName().str();
    templates(name, size, repetitions);
    access(name, size, repetitions);
}

} // namespace Bench
